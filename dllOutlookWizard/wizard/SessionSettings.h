#pragma once

#include "FormState.h"

namespace tarnel {

// The sections of the Settings table and the projects, read into the session state. A value that is no number where
// one is taken or a row too many fails; so does a Null among the date formats, the modes and the projects. Elsewhere a
// Null means the default, or nothing.

void readLevelNamesAndPoints();
// Into meSizes. An empty section gets its six rows first.
void readLayout(FormState& form);
void readDateFormats();
void readIntegration();
void readProjects();
// "NONE" without a row; with more than one the profile stays as it was.
void readProfile();

}  // namespace tarnel
