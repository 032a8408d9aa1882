#pragma once

#include "Item.h"
#include "Recordset.h"
#include "Redemption.h"

namespace tarnel {

// The one mapping of each direction between a row of TASKS and an Outlook task.

// Current row to item, unsaved. A due date that Outlook refuses is passed over; no minutes count as 0.
void writeTaskToItem(ado::Recordset& task, outlook::TaskItem& item);

enum class TaskRow { existing, fresh };
// Item to current row, unwritten: the fields, then points and the time of the change. Notes are added after those of
// an existing row and set in a fresh one.
void writeItemToTask(outlook::SafeTaskItem& wrapper, ado::Recordset& task, TaskRow kind);

}  // namespace tarnel
