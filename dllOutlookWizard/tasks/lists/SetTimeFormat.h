#pragma once

#include <string>

namespace tarnel {

// Minutes as the task lists show them: "1:30", "2 Days", "1W 0D 0:01". The length of a day comes from the settings
// HoursInDay, D5Start and D5End; the sign is dropped. Empty after a reported failure.
std::string SetTimeFormat(double minutes);

}  // namespace tarnel
