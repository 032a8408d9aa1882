#pragma once

namespace tarnel {

// The wizard's own transfers as hosts ask for them while a wizard stands, on lists of their own, so that what the user
// sees in the wizard stays as it is. The user is told the counts, and of what stopped them; false then. Failures are
// the database's.

// Puts the open tasks of the Current list into Outlook.
bool copyCurrentTasks();
// Takes the open Outlook tasks that are linked to no task into the Outlook Tasks Project, which is made where it is
// missing.
bool importOutlookTasks();

}  // namespace tarnel
