#include "HtmlFile.h"

#include <fstream>
#include <iterator>

#include "Failure.h"

namespace tarnel {
namespace {

constexpr std::uintmax_t largest = 32 << 20;  // bytes

[[noreturn]] void failAccess(const std::filesystem::path& file, const std::string& reason) {
  throw Failure(failure::pathAccess, "The page \"" + file.string() + "\" can't be shown: " + reason);
}

}  // namespace

std::string readHtmlFile(const std::filesystem::path& file) {
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (!std::filesystem::exists(status))
    throw Failure(failure::fileNotFound, "The page \"" + file.string() + "\" is not there.");
  if (!std::filesystem::is_regular_file(status)) failAccess(file, "it is no file.");
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  if (error) failAccess(file, error.message() + ".");
  if (size > largest) failAccess(file, "it is larger than 32 MB.");
  std::ifstream in(file, std::ios::binary);
  if (!in) failAccess(file, "you may not read it.");
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::string htmlText(std::string_view text) {
  std::string html;
  for (const char c : text) {
    if (c == '&')
      html += "&amp;";
    else if (c == '<')
      html += "&lt;";
    else if (c == '>')
      html += "&gt;";
    else if (c == '"')
      html += "&quot;";
    else
      html += c;
  }
  return html;
}

}  // namespace tarnel
