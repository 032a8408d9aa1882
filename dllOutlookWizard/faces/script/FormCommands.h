#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "FormFacts.h"

namespace tarnel::script {

// Why a command can't be carried out, in words for whoever wrote it.
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Carries out one command on a form, as a user would, and gives its reply without the name "reply". `words` has at
// least the command itself. The form may be gone afterwards. CommandError: nothing was changed.
Json runCommand(Form& form, const std::vector<std::string>& words);

}  // namespace tarnel::script
