#include "RowTimes.h"

#include "Conversions.h"
#include "Item.h"

namespace tarnel {
namespace {

constexpr std::int16_t minutesOfDay = 1440;

std::int16_t minute(Date time) { return static_cast<std::int16_t>(time.minuteOfDay()); }

std::int32_t dayNumber(Date time) { return roundToLong(time.wholeDay().days); }

}  // namespace

RowTimes rowTimes(Date start, Date end) { return {minute(start), minute(end), dayNumber(end)}; }

RowTimes rowTimes(const outlook::AppointmentItem& item) {
  const Date start = item.Start();
  if (start.isMidnight()) return {0, minutesOfDay, dayNumber(start)};
  return rowTimes(start, item.end());
}

}  // namespace tarnel
