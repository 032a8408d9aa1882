#pragma once

#include <string>

#include "TaskLists.h"

namespace tarnel {

// The commands that act on the checked rows of a list and on both sides of the link. Each attaches to Outlook again,
// writes row by row, and lets go of Outlook at its end. True when the run came to its end; false when the user, Outlook
// out of reach or a reported failure stopped it; what was written before stays.

// From the Tarnel list: makes or updates the Outlook tasks of the checked rows, and tells the counts.
bool Tarnel2OUTTasks(TaskLists& lists);
// From the Outlook list: takes the checked rows into the task database, where Outlook wins, and tells the counts.
bool MakeUpdateOutlookTasksInTarnel(TaskLists& lists);

// From the Outlook list, asked first: the items, and the tasks that they are linked to.
bool MarkOutlookTasksAsDone(TaskLists& lists);
// From the Tarnel list, unasked: the tasks, and all items that bear their GUIDs.
bool MarkTarnelTasksAsDone(TaskLists& lists);

// From the Outlook list, asked first: deletes the items; linked tasks stay and lose their link.
bool MarkOutlookTasksAsDeleted(TaskLists& lists);
// From the Tarnel list, asked first: deletes the tasks for good, with keywords and appointments, and all items that
// bear their GUIDs.
bool MarkTarnelTasksAsDeleted(TaskLists& lists);

// Deletes a task's rows: TASKS, then TASKKEYWORDS, then TASKAPPTS; each statement by itself.
bool deleteTask(const std::string& key);

}  // namespace tarnel
