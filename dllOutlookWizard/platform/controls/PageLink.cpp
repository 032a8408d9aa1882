#include "PageLink.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "Conversions.h"

namespace tarnel {
namespace {

namespace fs = std::filesystem;

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isLetterOrDigit(char c) { return isLetter(c) || (c >= '0' && c <= '9'); }

// None for an escape that is none, and for the character 0, which would end a path early.
std::optional<std::string> unescaped(std::string_view url) {
  std::string text;
  for (std::size_t i = 0; i < url.size(); ++i) {
    if (url[i] != '%') {
      text += url[i];
      continue;
    }
    unsigned value = 0;
    const char* const first = url.data() + i + 1;
    if (i + 2 >= url.size()) return {};
    const auto [end, error] = std::from_chars(first, first + 2, value, 16);
    if (error != std::errc{} || end != first + 2 || value == 0) return {};
    text += static_cast<char>(value);
    i += 2;
  }
  return text;
}

std::string escaped(std::string_view text) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string url;
  for (const char c : text) {
    if (isLetterOrDigit(c) || std::string_view("/-_.~").find(c) != std::string_view::npos) {
      url += c;
      continue;
    }
    const auto byte = static_cast<unsigned char>(c);
    url += {'%', digits[byte >> 4U], digits[byte & 15U]};
  }
  return url;
}

// "http", "mailto" and so on; empty for a link that has none. A scheme starts with a letter (RFC 3986, 3.1).
std::string_view schemeOf(std::string_view url) {
  const std::size_t colon = url.find(':');
  if (colon == std::string_view::npos || url.find_first_of("/?#") < colon) return {};
  return isLetter(url.front()) ? url.substr(0, colon) : std::string_view();
}

bool isHtml(const fs::path& file) {
  const std::string extension = toUpper(file.extension().string());
  return extension == ".HTM" || extension == ".HTML";
}

bool liesIn(const fs::path& file, const fs::path& folder) {
  std::error_code error;
  const fs::path whole = fs::weakly_canonical(file, error);
  if (error) return false;
  const fs::path home = fs::weakly_canonical(folder / ".", error);
  return !error && fs::path(whole.parent_path() / "").lexically_normal() == fs::path(home / "").lexically_normal();
}

}  // namespace

std::optional<PageLocation> resolveLink(std::string_view url, const fs::path& from, const fs::path& folder) {
  const std::string_view scheme = schemeOf(url);
  if (!scheme.empty()) {
    if (!equalsIgnoringCase(scheme, "file")) return {};
    url.remove_prefix(scheme.size() + 1);
    if (url.starts_with("//")) url.remove_prefix(2);
    if (!url.starts_with('/')) return {};  // another machine's file
  } else if (url.starts_with("//")) {
    return {};  // another machine, under the page's own scheme
  }
  const std::size_t hash = std::min(url.find('#'), url.size());
  const auto path = unescaped(url.substr(0, std::min(hash, url.find('?'))));
  const auto anchor = unescaped(url.substr(std::min(hash + 1, url.size())));
  if (!path || !anchor) return {};
  const fs::path file = path->empty() ? from : (from.parent_path() / *path).lexically_normal();
  if (!isHtml(file) || !liesIn(file, folder)) return {};
  return PageLocation{file, *anchor};
}

std::string fileUrl(const PageLocation& location) {
  if (location.file.empty()) return {};
  const std::string url = "file://" + escaped(fs::absolute(location.file).lexically_normal().string());
  return location.anchor.empty() ? url : url + "#" + escaped(location.anchor);
}

}  // namespace tarnel
