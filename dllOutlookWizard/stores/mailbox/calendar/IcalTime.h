#pragma once

#include <libical/ical.h>

#include "WallTime.h"

namespace tarnel::mailbox {

// Between the store's wall time and libical's, without a zone.
icaltimetype icalTimeOf(WallSeconds wall, bool isDate = false);
WallSeconds wallSecondsOf(const icaltimetype& time);

}  // namespace tarnel::mailbox
