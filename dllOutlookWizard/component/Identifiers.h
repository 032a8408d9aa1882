#pragma once

#include <string>

#include "TarnelOutWizard.h"

namespace tarnel {

bool same(const TarnelGuid& one, const TarnelGuid& other);

// "{80CBB0D3-2178-4BDA-BAFA-BC487804CA1C}".
std::string textOf(const TarnelGuid& id);

}  // namespace tarnel
