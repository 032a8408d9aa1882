#pragma once

#include "ItemRecord.h"
#include "Zone.h"

namespace tarnel::mailbox {

// Works out what an index finds the series by, from its rules, zone, seriesStart and times: where it ends, and masks of
// the days that an occurrence can touch.
void indexSeries(ItemRecord& series, const Zone& zone);

// The days from the one of `from` to the one of `to`, as the same masks: a series none of whose days are among them has
// no occurrence there.
std::int64_t weekdaysBetween(WallSeconds from, WallSeconds to);
std::int64_t monthDaysBetween(WallSeconds from, WallSeconds to);

}  // namespace tarnel::mailbox
