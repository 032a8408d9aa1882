#include "WebBrowser.h"

#include "Failure.h"
#include "HtmlFile.h"

namespace tarnel {

void WebBrowser::Navigate2(const std::filesystem::path& page) {
  history_.push_back({page, {}});
  navigated();
}

void WebBrowser::GoBack() {
  if (!canGoBack()) throw Failure(failure::invalidCall, "There is no page to go back to");
  history_.pop_back();
  navigated();
}

std::string WebBrowser::LocationName() const {
  return history_.empty() ? noPage : history_.back().file.filename().string();
}

std::string WebBrowser::html() const {
  if (history_.empty()) return {};
  try {
    return readHtmlFile(history_.back().file);
  } catch (const Failure& failure) {
    return "<html><head><meta charset=\"utf-8\"><title>Page not found</title></head><body>"
           "<h2>This help page can't be shown</h2><p>" +
           htmlText(failure.description()) +
           "</p><p>The program's help folder may be incomplete. Installing the program again brings the pages back. "
           "The other topics, and the program itself, are not affected.</p></body></html>";
  }
}

void WebBrowser::followLink(std::string_view url) {
  const auto target = history_.empty() ? std::nullopt : resolveLink(url, history_.back().file, folder_);
  if (!target) return linkRefused(std::string(url));
  if (*target == history_.back()) return navigated();  // the place may have been scrolled out of sight
  history_.push_back(*target);
  navigated();
}

}  // namespace tarnel
