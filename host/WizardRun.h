#pragma once

#include "Composition.h"
#include "HostEvents.h"
#include "WizardOptions.h"

namespace tarnel::host {

// Opens the wizard on this desktop and returns when it has gone. False when it was ended by a failure, which was
// told to the user, and is told once more on the standard error stream.
bool runWizard(Composition& parts, Desktop& desktop, const WizardOptions& options, const EventTeller& tell);

}  // namespace tarnel::host
