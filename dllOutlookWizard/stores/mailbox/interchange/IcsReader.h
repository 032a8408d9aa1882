#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "Mailbox.h"

namespace tarnel::mailbox {

// What an import did.
struct ImportReport {
  int added = 0;
  int updated = 0;
  int unchanged = 0;
  // "FILE:LINE: what is wrong", one for each component that was not taken.
  std::vector<std::string> skipped;
};

// Takes the events and to-dos of an iCalendar file, in one transaction. An item that the mailbox has already, by UID
// and RECURRENCE-ID, is brought up to date where it is; an occurrence that was deleted here stays deleted. Failure
// when the file can't be read or is no calendar; the mailbox is unchanged then.
ImportReport importIcs(Mailbox& mailbox, const std::filesystem::path& file);
// The same for a text; `name` is what messages call the file.
ImportReport importIcsText(Mailbox& mailbox, std::string_view text, const std::string& name);

}  // namespace tarnel::mailbox
