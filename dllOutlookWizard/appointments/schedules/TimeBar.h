#pragma once

#include "DaySchedules.h"
#include "SmartUI.h"

namespace tarnel {

// Puts the hours shown and the lengths of a row into the bar, none of them chosen yet.
void makeTimeBarItems(SmartUI& smtTimebarSizer);

// Chooses in the bar and on both schedules what the host asked for: the whole day and rows of an hour where it named
// nothing that is known.
void SetCals(SmartUI& smtTimebarSizer, DaySchedules& schedules);

// Chooses `item`. Neither the session nor the settings hear of it.
void smtTimebarSizer_Click(SmartUI& smtTimebarSizer, DaySchedules& schedules, SmartItem& item);

}  // namespace tarnel
