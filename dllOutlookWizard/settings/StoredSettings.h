#pragma once

#include "FormState.h"

namespace tarnel {

// What the task database keeps for the wizard: the table Settings, and the names of the projects.

// Each reads a part into the session state. Failure 91 where its rows could not be opened, which has been reported
// then. A value that is no number where one is taken or a row too many fails; so does a Null among the date formats,
// the modes and the projects. Elsewhere a Null means the default, or nothing.
void readLevelNamesAndPoints();
// Into meSizes. An empty section gets its six rows first.
void readLayout(FormState& form);
// A working day that is none becomes the default one, and the user is told.
void readDateFormats();
void readIntegration();
void readProjects();
// "NONE" without a row; with more than one the profile stays as it was.
void readProfile();

// Reads the Outlook project alone, which may have been made since the wizard opened. Without one the session keeps what
// it has. Failures are the database's.
void readOutlookProject();

// Writes the form's place and shares and the two modes in force into the rows that are there; none is added. True
// when it came to its end.
bool SaveSettings(const FormState& form);

}  // namespace tarnel
