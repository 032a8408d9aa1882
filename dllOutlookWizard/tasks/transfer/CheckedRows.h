#pragma once

#include <functional>

#include "SmartUI.h"

namespace tarnel {

int countCheckedRows(SmartUI& list);

// Calls `act` for each row that is checked when its turn comes, in list order, and shows how far the run is. `act` may
// remove its row, and where it lets events run the user may change checks or fill the list again.
void forEachCheckedRow(SmartUI& list, const std::function<void(SmartItem& row)>& act);

}  // namespace tarnel
