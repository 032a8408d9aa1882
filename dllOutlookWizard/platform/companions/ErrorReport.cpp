#include "ErrorReport.h"

#include <fstream>

namespace tarnel {
namespace {

// One line a fact: line ends inside a text become blanks.
std::string onOneLine(std::string text) {
  for (char& c : text)
    if (c == '\r' || c == '\n') c = ' ';
  return text;
}

}  // namespace

void ErrorReport::report(const FailureReport& failure) {
  const bool kept = append(failure);
  if (!first_) first_ = failure, firstKept_ = kept;
  desktop_.report(failure);
}

bool ErrorReport::append(const FailureReport& failure) const {
  std::error_code ignored;
  std::filesystem::create_directories(file_.parent_path(), ignored);
  std::ofstream out(file_, std::ios::app);
  out << isoText(clock_.now()) << '\n'
      << "  project:   " << failure.project << '\n'
      << "  module:    " << failure.module << '\n'
      << "  procedure: " << failure.procedure << '\n'
      << "  text:      " << onOneLine(failure.text) << '\n'
      << "  number:    " << failure.number << '\n'
      << "  line mark: " << failure.lineMark << '\n'
      << "  profile:   " << onOneLine(failure.profile) << '\n'
      << std::flush;
  return out.good();
}

}  // namespace tarnel
