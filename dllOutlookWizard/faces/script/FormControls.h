#pragma once

#include <string_view>

#include "Form.h"

namespace tarnel::script {

// The form's control with this full name when it is of this kind, else none.
template <class Kind>
Kind* controlNamed(const Form& form, std::string_view fullName) {
  for (Control* control : form.controls())
    if (control->fullName() == fullName) return dynamic_cast<Kind*>(control);
  return nullptr;
}

// The form's first control of this kind, else none.
template <class Kind>
Kind* firstControl(const Form& form) {
  for (Control* control : form.controls())
    if (auto* found = dynamic_cast<Kind*>(control)) return found;
  return nullptr;
}

}  // namespace tarnel::script
