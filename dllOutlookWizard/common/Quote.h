#pragma once

#include <string>

#include "Variant.h"

namespace tarnel {

// The text with a double quote on each side; quotes inside it are not doubled.
std::string Quote(const Variant& value);

}  // namespace tarnel
