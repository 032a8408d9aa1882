#pragma once

#include <filesystem>
#include <optional>

#include "Desktop.h"
#include "Registry.h"

namespace tarnel {

// Sets a report's database and mailbox to those that the wizard works on now. `mailbox` is the one that the host named;
// none where the profile decides. What can't be found out stays empty.
void addFilesInUse(FailureReport& report, const std::optional<std::filesystem::path>& mailbox, Registry& registry);

}  // namespace tarnel
