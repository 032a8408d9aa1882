#pragma once

#include <filesystem>
#include <optional>

#include "Clock.h"
#include "Platform.h"

namespace tarnel {

// Shows a failure to the user and appends the same facts, with date and time, to a text file, so that they can be
// passed on later. A file that can't be written is no failure of its own.
class ErrorReport : public TarnelErrReport {
 public:
  ErrorReport(Desktop& desktop, const Clock& clock, std::filesystem::path file)
      : desktop_(desktop), clock_(clock), file_(std::move(file)) {}

  void report(const FailureReport& failure) override;

  // The first failure told, which those behind it mostly follow from; none when there was none.
  const std::optional<FailureReport>& first() const { return first_; }
  // Whether that one could be written to the file.
  bool firstKept() const { return firstKept_; }
  const std::filesystem::path& file() const { return file_; }

 private:
  bool append(const FailureReport& failure) const;

  Desktop& desktop_;
  const Clock& clock_;
  std::filesystem::path file_;
  std::optional<FailureReport> first_;
  bool firstKept_ = false;
};

}  // namespace tarnel
