#include "SettingsFile.h"

#include <fstream>
#include <iterator>

#include "Failure.h"
#include "ReplaceFile.h"

namespace tarnel {
namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view openingTag = "<DBLoc>";
constexpr std::string_view closingTag = "</DBLoc>";

// Takes one line end off the front, or off the back. An editor may have left plain ones.
bool takeLineEnd(std::string_view& text, bool atBack) {
  for (const std::string_view each : {lineEnd, std::string_view("\n")}) {
    if (atBack ? !text.ends_with(each) : !text.starts_with(each)) continue;
    atBack ? text.remove_suffix(each.size()) : text.remove_prefix(each.size());
    return true;
  }
  return false;
}

}  // namespace

bool SettingsFile::exists() const { return std::filesystem::is_regular_file(path_); }

std::string SettingsFile::databasePath() const {
  std::ifstream file(path_, std::ios::binary);
  if (!file) throw Failure(failure::fileNotFound, "File not found: " + path_.string());
  const std::string text{std::istreambuf_iterator<char>(file), {}};

  const std::size_t opening = text.find(openingTag);
  const std::size_t closing = opening == std::string::npos ? opening : text.find(closingTag, opening);
  std::string_view path;
  if (closing != std::string::npos)
    path = std::string_view(text).substr(0, closing).substr(opening + openingTag.size());
  if (!takeLineEnd(path, false) || !takeLineEnd(path, true))
    throw Failure(
        failure::invalidCall,
        "Invalid procedure call or argument: there is no path between <DBLoc> and </DBLoc> in " + path_.string());
  return std::string(path);
}

void SettingsFile::write(const std::string& databasePath) const {
  std::string text;
  for (const std::string_view line : {std::string_view("<Tarnel>"), openingTag, std::string_view(databasePath),
                                      closingTag, std::string_view("</Tarnel>")})
    text.append(line).append(lineEnd);
  if (replaceFile(path_, text)) throw Failure(failure::pathAccess, "Path/File access error: " + path_.string());
}

}  // namespace tarnel
