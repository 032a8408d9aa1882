#pragma once

#include <cstdint>

#include "Recordset.h"

namespace tarnel {

// The possible points of the current row of TASKS as it is, from session().thePointsTable.
std::int32_t possiblePoints(ado::Recordset& task);

}  // namespace tarnel
