#pragma once

#include <filesystem>

#include "Platform.h"

namespace tarnel {

// Where the host keeps its help pages.
inline std::filesystem::path helpFolder() { return platform().applicationFolder / "help"; }

}  // namespace tarnel
