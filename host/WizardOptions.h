#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "Date.h"

namespace tarnel::host {

// How the wizard is to open.
struct WizardOptions {
  std::filesystem::path database;
  std::optional<std::filesystem::path> mailbox;  // none: that of the chosen profile, or the user's own
  Date date;                                     // day 0: today
  bool appointments = false;                     // opens on the Appointments tab
  std::string hours = "day";                     // "all" or "day"
  int interval = 30;                             // minutes a row of the schedules
  std::string printSettings;                     // CStringBag text
};

}  // namespace tarnel::host
