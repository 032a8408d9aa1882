#pragma once

#include <memory>
#include <string_view>

#include "Recordset.h"

namespace tarnel {

// The rows of one section of the Settings table, of the one user there is, in their display order. Failure 91 where
// they could not be opened, which has been reported then.
std::shared_ptr<ado::Recordset> openSettingsSection(std::string_view section);

}  // namespace tarnel
