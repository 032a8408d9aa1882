#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace tarnel::mailbox {

// Outlook as something that runs or doesn't: while this object lives, a file "<mailbox>.running" beside the default
// mailbox is locked, and every process of the user finds Outlook running. The lock ends with the process, however it
// ends. The file holds the name of the profile that Outlook runs on; empty is the default one.
class RunningOutlook {
 public:
  // Nothing when Outlook runs already, or when the folder takes no file.
  static std::unique_ptr<RunningOutlook> start(const std::filesystem::path& defaultMailbox,
                                               const std::string& profile = {});
  // The profile of the running Outlook; none when none runs.
  static std::optional<std::string> profile(const std::filesystem::path& defaultMailbox);

  RunningOutlook(std::filesystem::path mark, int file) : mark_(std::move(mark)), file_(file) {}
  RunningOutlook(const RunningOutlook&) = delete;
  RunningOutlook& operator=(const RunningOutlook&) = delete;
  ~RunningOutlook();

  void setProfile(const std::string& profile);

 private:
  std::filesystem::path mark_;
  int file_;
};

}  // namespace tarnel::mailbox
