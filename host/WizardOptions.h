#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "Date.h"

namespace tarnel::host {

// A page of 2 to 2.5 cm margins, the date and the page number at its foot. A name that ends like a shorter one comes
// after it, because the reader takes the first match.
inline constexpr const char* defaultPrintSettings =
    "PRINTER=\tCOPIES=1\tPAPER=\tTOP=2.5\tBOTTOM=2\tRIGHT=2\tLEFT=2\tHCOLOR=0\tHFONT=\tHSIZE=10\tHEADING=\tFCOLOR=0\t"
    "FFONT=\tFSIZE=8\tFLEFT=--Long Date--\tFRIGHT=Page Number\t";

// How the wizard is to open.
struct WizardOptions {
  std::filesystem::path database;
  std::optional<std::filesystem::path> mailbox;      // none: that of the chosen profile, or the user's own
  Date date;                                         // day 0: today
  bool appointments = false;                         // opens on the Appointments tab
  std::string hours = "day";                         // "all" or "day"
  int interval = 30;                                 // minutes a row of the schedules
  std::string printSettings = defaultPrintSettings;  // CStringBag text
  bool keepsOutlookUpToDate = true;                  // as the modes in force ask for it
};

}  // namespace tarnel::host
