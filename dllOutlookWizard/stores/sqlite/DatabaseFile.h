#pragma once

#include <filesystem>

namespace tarnel::sqlite {

// Looks at a file without touching it, before the engine does: the engine would only complain at its first statement,
// and in its own words. Failure failure::engine, naming the file, the reason and what to do, for a file that is
// missing, a folder, unreadable, marked read-only, cut short, of another program, or no database at all.
void checkDatabaseFile(const std::filesystem::path& path);

}  // namespace tarnel::sqlite
