#pragma once

#include <filesystem>
#include <string>

namespace tarnel::sqlite {

// Creates a database file by the engine's own statements, divided by ";". The file appears whole or not at all; one
// that is there already is left as it is. Failure failure::pathAccess for a path that is taken or can't be written,
// or that a removed database left a log with changes beside; failure::badStatement for a statement that fails.
void createDatabase(const std::filesystem::path& path, const std::string& script);

}  // namespace tarnel::sqlite
