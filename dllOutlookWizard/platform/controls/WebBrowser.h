#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "Control.h"
#include "PageLink.h"

namespace tarnel {

// Shows HTML files and the links between them. A page that can't be read is shown as a page that says so.
class WebBrowser : public Control {
 public:
  // LocationName before the first page.
  static constexpr const char* noPage = "http:///";

  using Control::Control;

  // Where the pages lie that links may lead to. Before it is set no link is followed.
  void setFolder(std::filesystem::path folder) { folder_ = std::move(folder); }
  const std::filesystem::path& folder() const { return folder_; }

  // Shows a page, wherever it lies.
  void Navigate2(const std::filesystem::path& page);
  // Shows the page that was left last. Failure 5 when there is none.
  void GoBack();
  bool canGoBack() const { return history_.size() > 1; }

  // Empty before the first page.
  std::string LocationURL() const { return fileUrl(location()); }
  // The file name of the page.
  std::string LocationName() const;
  // Without a file before the first page.
  PageLocation location() const { return history_.empty() ? PageLocation{} : history_.back(); }
  // The page as it is in its file, or a page that says why it can't be shown; empty before the first page.
  std::string html() const;

  // What a user does: shows where a link of the page leads. A link that leads to no page of the folder changes nothing
  // and raises linkRefused.
  void followLink(std::string_view url);

  // After each change of the location.
  Signal<> navigated;
  Signal<const std::string&> linkRefused;

 private:
  std::filesystem::path folder_;
  std::vector<PageLocation> history_;  // the page shown is last
};

}  // namespace tarnel
