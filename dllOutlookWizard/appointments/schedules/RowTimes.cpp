#include "RowTimes.h"

#include <algorithm>

#include "Conversions.h"
#include "Item.h"

namespace tarnel {
namespace {

constexpr std::int16_t minutesOfDay = 1440;

std::int16_t minute(Date time) { return static_cast<std::int16_t>(time.minuteOfDay()); }

std::int32_t dayNumber(Date time) { return roundToLong(time.wholeDay().days); }

}  // namespace

RowTimes rowTimes(Date start, Date end) {
  const std::int32_t first = dayNumber(start), endDay = dayNumber(end);
  const std::int32_t last = end.isMidnight() ? endDay - 1 : endDay;
  return {minute(start), minute(end), endDay, first, std::max(first, last)};
}

RowTimes rowTimes(const outlook::AppointmentItem& item) {
  const Date start = item.Start();
  RowTimes times = rowTimes(start, item.end());
  if (start.isMidnight()) times.start = 0, times.end = minutesOfDay, times.date = times.firstDay;
  return times;
}

}  // namespace tarnel
