#pragma once

namespace tarnel {

// The wizard's own transfers as hosts ask for them while a wizard is open, on lists of their own, so that what the user
// sees in the wizard stays as it is. The user is told the counts, and of what stopped them; false then. Failures are
// the database's.

// What the transfers go by and the wizard's form reads when it opens. Failures are those of SessionSettings.
void readSettingsForTransfers();

// Puts the open tasks of the Current list into Outlook. What is done there stays done.
bool copyCurrentTasks();
// Puts the Task Appointments from today on into Outlook's calendar. Nothing is counted.
bool copyTaskAppointments();
// Takes the open Outlook tasks that are linked to no task into the Outlook Tasks Project, which is made where it is
// missing.
bool importOutlookTasks();

}  // namespace tarnel
