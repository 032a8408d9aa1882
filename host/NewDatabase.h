#pragma once

#include <filesystem>

#include "Date.h"

namespace tarnel::host {

// Where a user's task database is when none is named.
std::filesystem::path defaultDatabase();

// Creates a task database, with `demo` filled with data to try the program on, around `today`. Missing folders on the
// way are made. Failure when the file is there already or can't be written; nothing is left half-written.
void newDatabase(const std::filesystem::path& file, bool demo, Date today);

}  // namespace tarnel::host
