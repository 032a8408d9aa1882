#pragma once

#include <filesystem>

namespace tarnel {

// The library's own file as it was loaded, symbolic links resolved; help pages and settings file lie beside it.
const std::filesystem::path& componentFile();

}  // namespace tarnel
