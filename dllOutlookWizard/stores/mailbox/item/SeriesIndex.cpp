#include "SeriesIndex.h"

#include "PlainRule.h"
#include "Recurrence.h"

namespace tarnel::mailbox {
namespace {

// Where a series without an end ends for the index.
constexpr WallSeconds endless = noDate * 2;

std::int64_t nextWeekdays(std::int64_t days) { return (days << 1 | days >> 6) & everyWeekday; }
std::int64_t previousWeekdays(std::int64_t days) { return (days >> 1 | days << 6) & everyWeekday; }

// The day after a month's last one is the first; a month's last days are the 28th to the 31st.
constexpr std::int64_t lastDays = std::int64_t{0xF} << 28;
std::int64_t nextMonthDays(std::int64_t days) { return (days << 1 | ((days & lastDays) ? 2 : 0)) & everyMonthDay; }
std::int64_t previousMonthDays(std::int64_t days) { return (days >> 1 | ((days & 2) ? lastDays : 0)) & everyMonthDay; }

}  // namespace

void indexSeries(ItemRecord& series, const Zone& zone) {
  const Recurrence recurrence(series.recurrence, series.seriesStart, series.allDay);
  const WallSeconds length = series.end - series.start;
  const auto last = recurrence.lastStart();
  series.seriesEnd = last ? zone.toMachine(*last) + length : endless;
  series.weekdays = recurrence.weekdays();
  series.monthDays = recurrence.monthDays();
  if (!zone.isMachine()) {
    series.weekdays |= nextWeekdays(series.weekdays) | previousWeekdays(series.weekdays);
    series.monthDays |= nextMonthDays(series.monthDays) | previousMonthDays(series.monthDays);
  }
  // An occurrence also touches the days that it lasts into.
  const std::int64_t furtherDays = length == 0 ? 0 : length / secondsPerDay + 1;
  for (std::int64_t day = 0; day < furtherDays && day < 31; ++day) {
    series.weekdays |= nextWeekdays(series.weekdays);
    series.monthDays |= nextMonthDays(series.monthDays);
  }
}

std::int64_t weekdaysBetween(WallSeconds from, WallSeconds to) {
  std::int64_t days = 0;
  for (WallSeconds day = midnightOf(from); day <= to && days != everyWeekday; day += secondsPerDay)
    days |= 1 << weekdayOf(day / secondsPerDay);
  return days;
}

std::int64_t monthDaysBetween(WallSeconds from, WallSeconds to) {
  if (to - from > 31 * secondsPerDay) return everyMonthDay;
  std::int64_t days = 0;
  for (WallSeconds day = midnightOf(from); day <= to; day += secondsPerDay)
    days |= std::int64_t{1} << dateOf(day).civil().day;
  return days;
}

}  // namespace tarnel::mailbox
