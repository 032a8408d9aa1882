#pragma once

#include "WizardEvents.h"
#include "WizardOptions.h"

namespace tarnel::host {

// Chooses how the wizard shows itself.
using FaceChooser = std::function<TarnelResult(TarnelWizardControl&)>;

// Opens the component's wizard with this face and returns when it has gone. False when it was ended by a failure, which
// was told to the user, and is told once more on the standard error stream. Failure when it could not be opened.
bool runWizard(const WizardOptions& options, const FaceChooser& chooseFace, const EventTeller& tell);

}  // namespace tarnel::host
