#pragma once

#include <filesystem>
#include <string>

#include "Mailbox.h"

namespace tarnel::mailbox {

// The tasks and appointments of a mailbox, without Deleted Items, as iCalendar text (RFC 5545): lines folded at 75
// octets and ended by CR LF. Times of single items are in UTC, those of series in the series' zone.
std::string exportIcsText(Mailbox& mailbox);

// Writes the text to a file, whole or not at all; a file of that name is replaced. The number of components written.
// Failure when the file can't be written, or is a database of any kind, this mailbox included, or a database's log.
int exportIcs(Mailbox& mailbox, const std::filesystem::path& file);

}  // namespace tarnel::mailbox
