#pragma once

#include <filesystem>

namespace tarnel::sqlite {

// The files that the engine keeps beside a database. They outlive one that is removed after its program was killed, and
// would damage the next database of that name.

// Where a database is to be made: removes those that hold nothing by themselves. Gives the first one that holds
// changes, which stays with all others; empty when there is none, and where a file is in the way.
std::filesystem::path clearPlaceOf(const std::filesystem::path& database);

// Removes a database with all that belongs to it, as far as that is possible.
void removeDatabase(const std::filesystem::path& database);

}  // namespace tarnel::sqlite
