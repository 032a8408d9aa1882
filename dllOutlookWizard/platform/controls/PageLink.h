#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tarnel {

// A page and the place on it.
struct PageLocation {
  std::filesystem::path file;
  std::string anchor;  // without "#"; empty for the page's start

  friend bool operator==(const PageLocation&, const PageLocation&) = default;
};

// Where a link on the page `from` leads. None when it does not lead to an HTML page that lies directly in
// `folder`, whatever links of the file system are on the way; whether the page is there is not asked.
std::optional<PageLocation> resolveLink(std::string_view url, const std::filesystem::path& from,
                                        const std::filesystem::path& folder);

// "file:///..." with all that is no plain character of a URL escaped; empty for no file.
std::string fileUrl(const PageLocation& location);

}  // namespace tarnel
