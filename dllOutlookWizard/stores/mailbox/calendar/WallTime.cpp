#include "WallTime.h"

#include <cmath>
#include <string>

#include "Failure.h"

namespace tarnel::mailbox {

WallSeconds wallSecondsOf(Date date) {
  const double whole = std::trunc(date.days);
  const double fraction = std::abs(date.days - whole);
  return static_cast<WallSeconds>(whole) * secondsPerDay + std::llround(fraction * static_cast<double>(secondsPerDay));
}

Date dateOf(WallSeconds seconds) {
  const WallSeconds midnight = midnightOf(seconds);
  const WallSeconds day = midnight / secondsPerDay;
  const auto whole = static_cast<double>(day);
  const double fraction = static_cast<double>(seconds - midnight) / static_cast<double>(secondsPerDay);
  return {whole < 0 ? whole - fraction : whole + fraction};
}

WallSeconds midnightOf(WallSeconds seconds) {
  const WallSeconds ofDay = (seconds % secondsPerDay + secondsPerDay) % secondsPerDay;
  return seconds - ofDay;
}

WallSeconds outlookSecondsOf(Date date, const char* what) {
  constexpr std::int64_t lastDay = noDate / secondsPerDay;
  // Written so that a day number that is no number fails too.
  if (!(date.days >= 0 && date.days <= static_cast<double>(lastDay)))
    throw Failure(failure::automation,
                  std::string(what) + " can't be set: the date lies before 1899-12-30 or beyond 4501-01-01.",
                  "Outlook.Item");
  return wallSecondsOf(date);
}

}  // namespace tarnel::mailbox
