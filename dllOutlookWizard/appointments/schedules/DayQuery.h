#pragma once

#include <string>
#include <string_view>

#include "Date.h"

namespace tarnel {

// The statement, in Jet's SQL, that reads the Task Appointments of a day, first start first. `mode` is "TODAY",
// "CURRENTDATE" for `day`, or a date in the system's short date format; letters in either case. `wholeWeek` takes
// in five days more, and counts for a date alone. What starts at midnight after the last day belongs to it. Failure 13
// for any other mode.
std::string dayQuery(std::string_view mode, bool wholeWeek, Date day);

}  // namespace tarnel
