#pragma once

#include "FormState.h"

namespace tarnel {

// Writes the form's place and shares and the two modes in force into the rows that are there; none is added. True
// when it came to its end.
bool SaveSettings(const FormState& form);

}  // namespace tarnel
