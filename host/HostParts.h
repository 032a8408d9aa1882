#pragma once

#include <optional>

#include "Composition.h"

namespace tarnel::host {

// Where Outlook's mailbox is when neither a file nor a profile is named.
std::filesystem::path defaultMailbox();

// The program's parts. With `mailbox` that file is Outlook's mailbox whatever profile is chosen; without it the
// profile's own is.
Composition hostParts(const std::optional<std::filesystem::path>& mailbox = {});

}  // namespace tarnel::host
