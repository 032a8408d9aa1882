#pragma once

#include <filesystem>
#include <optional>

#include "Clock.h"

namespace tarnel::host {

// Where a user's task database is when none is named.
std::filesystem::path defaultDatabase();

// Creates a task database without tasks and with one project to begin with, and the mailbox unless one is there.
// Missing folders on the way are made. Failure when the database is there already or a file can't be written; nothing
// is left half-written. What is there in the mailbox's place must be one.
void newDatabase(const std::filesystem::path& file, const std::filesystem::path& mailboxFile);

// The same with data to try the program on, around the present day, and the mailbox that goes with it: some of the
// tasks and appointments are linked. Failure when one of the two is there already; neither is made then.
void newDemo(const std::filesystem::path& file, const std::filesystem::path& mailboxFile, const Clock& clock);

}  // namespace tarnel::host
