#pragma once

#include <optional>

#include "Composition.h"
#include "Profiles.h"

namespace tarnel::host {

// The program's parts. With `mailbox` that file is Outlook's mailbox whatever profile is chosen; without it the
// profile's own is.
Composition hostParts(const std::optional<std::filesystem::path>& mailbox = {});

}  // namespace tarnel::host
