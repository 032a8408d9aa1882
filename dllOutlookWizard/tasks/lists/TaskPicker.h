#pragma once

#include "SmartUI.h"

namespace tarnel {

inline constexpr const char* taskPickKey = "TASKPICK";
inline constexpr const char* sortPickKey = "SORTPICK";
// The entry of the sort order that switches whether completed tasks are shown.
inline constexpr const char* completedTasksKey = "D37";

// Puts the labels and the two drop-downs into the bar, without entries.
void makePickerItems(SmartUI& smtSkedPickTasks);
// Fills "TASKPICK" with the fixed picks and the session's projects.
void setupSkedPickTasksList(SmartUI& smtSkedPickTasks);
// Fills "SORTPICK", once.
void setupSkedPickTasksSort(SmartUI& smtSkedPickTasks);
// Shows the Current list, most points first.
void putPickerOnStart(SmartUI& smtSkedPickTasks);

}  // namespace tarnel
