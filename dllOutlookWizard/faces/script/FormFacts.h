#pragma once

#include <nlohmann/json.hpp>

#include "Form.h"
#include "SmartUI.h"
#include "ctMDay.h"

namespace tarnel::script {

// What a form and its controls hold, as the facts tell it; the names are in the order in which they are written.
using Json = nlohmann::ordered_json;

Json itemFacts(const SmartUI& control);
Json rowFacts(const ctMDay& schedule);
// All of "show" but the pointer and the sizes. A fact that the form has no control for is null.
Json formFacts(const Form& form);

// Empty and Null become null, dates ISO text.
Json valueFact(const Variant& value);

}  // namespace tarnel::script
