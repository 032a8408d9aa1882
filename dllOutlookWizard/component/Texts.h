#pragma once

#include <string>

#include "TarnelOutWizard.h"

namespace tarnel {

// A text that came as an argument. Refusal for none at all, for a length without bytes, and for null characters, which
// would cut it short further on.
std::string received(const TarnelText* text);

// A text to hand back, which its receiver frees. Out of memory is std::bad_alloc.
TarnelText handedBack(const std::string& text);

}  // namespace tarnel
