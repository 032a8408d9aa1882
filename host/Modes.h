#pragma once

#include <cstdint>

#include "Provider.h"

namespace tarnel::host {

// How a task database and Outlook work together, as its settings hold it.
struct Modes {
  static constexpr std::int32_t none = 0;
  static constexpr std::int32_t automatic = 3;

  std::int32_t tasks = none;
  std::int32_t appointments = none;
};

// Failures are the database's; a mode that can't be read counts as none.
Modes modesIn(ado::Session& database);

}  // namespace tarnel::host
