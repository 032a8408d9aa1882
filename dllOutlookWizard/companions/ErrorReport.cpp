#include "ErrorReport.h"

#include <fcntl.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

namespace tarnel {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t longestFile = 5'000'000;  // bytes
constexpr std::size_t longestText = 100'000;

// One line a fact: line ends inside a text become blanks, and a text that would fill the file is cut.
std::string onOneLine(std::string text) {
  if (text.size() > longestText) text = text.substr(0, longestText) + " ... (cut)";
  for (char& c : text)
    if (c == '\r' || c == '\n') c = ' ';
  return text;
}

}  // namespace

void ErrorReport::report(const FailureReport& failure) {
  FailureReport whole = failure;
  whole.version = TARNEL_VERSION;
  whole.keptIn = file_.string();
  if (addFiles_) addFiles_(whole);
  const bool kept = append(whole);
  if (!first_) first_ = whole, firstKept_ = kept;
  desktop_.report(whole);
}

bool ErrorReport::append(const FailureReport& failure) const {
  const std::string entry = entryOf(failure);
  std::error_code ignored;
  fs::create_directories(file_.parent_path(), ignored);
  std::error_code missing;
  const std::uintmax_t size = fs::file_size(file_, missing);
  if (!missing && size + entry.size() > longestFile) fs::rename(file_, olderFile(), ignored);
  // What the program was working on is nobody else's business.
  if (const int made = open(file_.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600); made >= 0) close(made);
  std::ofstream out(file_, std::ios::app);
  out << entry << std::flush;
  return out.good();
}

std::string ErrorReport::entryOf(const FailureReport& failure) const {
  std::ostringstream entry;
  entry << isoText(clock_.now()) << '\n'
        << "  project:   " << failure.project << '\n'
        << "  module:    " << failure.module << '\n'
        << "  procedure: " << failure.procedure << '\n'
        << "  text:      " << onOneLine(failure.text) << '\n'
        << "  number:    " << failure.number << '\n'
        << "  line mark: " << failure.lineMark << '\n'
        << "  profile:   " << onOneLine(failure.profile) << '\n'
        << "  version:   " << failure.version << '\n'
        << "  database:  " << onOneLine(failure.database) << '\n'
        << "  mailbox:   " << onOneLine(failure.mailbox) << '\n'
        << "  report in: " << onOneLine(failure.keptIn) << '\n';
  return entry.str();
}

fs::path ErrorReport::olderFile() const {
  fs::path older = file_;
  return older.replace_extension(".old" + file_.extension().string());
}

}  // namespace tarnel
