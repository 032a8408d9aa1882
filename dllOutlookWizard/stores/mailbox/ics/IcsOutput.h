#pragma once

#include <string>
#include <string_view>

namespace tarnel::mailbox {

// Collects lines of an iCalendar text, folded as RFC 5545 wants them.
class IcsOutput {
 public:
  void line(std::string_view text);
  // NAME:value, the value escaped; nothing for an empty one.
  void text(std::string_view name, std::string_view value);

  const std::string& result() const { return result_; }

 private:
  std::string result_;
};

}  // namespace tarnel::mailbox
