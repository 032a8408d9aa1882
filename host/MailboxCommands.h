#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>

#include "Clock.h"

namespace tarnel::host {

// What `tarnel mailbox` does to one mailbox file. Failure when the file is out of reach, or for what the operation
// names and doesn't find.
class MailboxCommands {
 public:
  // The clock and the stream outlive this object.
  MailboxCommands(std::filesystem::path file, const Clock& clock, std::ostream& out)
      : file_(std::move(file)), clock_(clock), out_(out) {}

  // One line an item, safe for terminals, or, as JSON, one array of items with ISO dates and null for what an item has
  // not.
  void list(bool json) const;
  // Makes the mailbox where it is missing. What can't be taken is told by file and line on `errors`, and false is
  // given.
  bool import(const std::filesystem::path& ics, std::ostream& errors) const;
  void exportTo(const std::filesystem::path& ics) const;
  void remove(const std::string& entryId) const;
  void move(const std::string& entryId, const std::string& folder) const;

 private:
  std::filesystem::path file_;
  const Clock& clock_;
  std::ostream& out_;
};

}  // namespace tarnel::host
