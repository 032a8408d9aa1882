#pragma once

#include <string>

#include "DaySchedules.h"

namespace tarnel {

// The commands that act on the marked rows of a schedule and on both sides of the link. Each attaches to Outlook again,
// writes row by row, and lets go of Outlook at its end. True when the run came to its end; false when the user, Outlook
// out of reach or a reported failure stopped it; what was written before stays.

// From the Tarnel side: makes or updates the Outlook appointments of the marked rows, unasked.
bool Tarnel2OUTAppts(DaySchedules& schedules);

// From the Outlook side, asked first: deletes the items but occurrences of a series; the Task Appointments that they
// are copies of stay and lose their link.
bool DeleteOutlookAppts(DaySchedules& schedules);
// From the Tarnel side, asked first: deletes the Task Appointments for good, and the copies that the Outlook side
// shows. Rows of Outlook only lose their mark.
bool DeleteTarnelAppts(DaySchedules& schedules);

// Deletes one row of TASKAPPTS.
bool deleteAppt(const std::string& guid);

}  // namespace tarnel
