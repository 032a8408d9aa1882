#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "Clock.h"
#include "Platform.h"

namespace tarnel {

// Shows a failure to the user, with the program's version and the files in use, and appends the same facts, with date
// and time, to a text file, so that they can be passed on later. A file that can't be written is no failure of its own.
// It stays below 5 MB: one that would grow past that becomes "NAME.old.txt", in the place of an older one, and a new
// one is begun. Both are their owner's alone.
class ErrorReport : public TarnelErrReport {
 public:
  // `addFiles` sets a report's database and mailbox, and fails at nothing.
  using AddFiles = std::function<void(FailureReport&)>;
  ErrorReport(Desktop& desktop, const Clock& clock, std::filesystem::path file, AddFiles addFiles = {})
      : desktop_(desktop), clock_(clock), file_(std::move(file)), addFiles_(std::move(addFiles)) {}

  void report(const FailureReport& failure) override;

  // The first failure told, which those after it mostly follow from; none when there was none.
  const std::optional<FailureReport>& first() const { return first_; }
  // Whether that one could be written to the file.
  bool firstKept() const { return firstKept_; }
  const std::filesystem::path& file() const { return file_; }

 private:
  bool append(const FailureReport& failure) const;
  std::string entryOf(const FailureReport& failure) const;
  std::filesystem::path olderFile() const;

  Desktop& desktop_;
  const Clock& clock_;
  std::filesystem::path file_;
  AddFiles addFiles_;
  std::optional<FailureReport> first_;
  bool firstKept_ = false;
};

}  // namespace tarnel
