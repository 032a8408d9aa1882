#pragma once

#include <cstdint>

#include "Date.h"

namespace tarnel::mailbox {

// A moment as the store keeps it: whole seconds of local wall time since 1899-12-30 00:00. Whole numbers compare
// exactly and serve an index, where day numbers with fractions would not.
using WallSeconds = std::int64_t;

inline constexpr WallSeconds secondsPerDay = 86400;
// 4501-01-01, which Outlook gives for "no date".
inline constexpr WallSeconds noDate = 949998 * secondsPerDay;

// To the nearest second.
WallSeconds wallSecondsOf(Date date);
Date dateOf(WallSeconds seconds);
// The same day at midnight.
WallSeconds midnightOf(WallSeconds seconds);

// Fails with 440 for a moment before 1899-12-30 or beyond 4501-01-01, the days that Outlook takes. `what` names the
// field in the failure's text.
WallSeconds outlookSecondsOf(Date date, const char* what);

}  // namespace tarnel::mailbox
