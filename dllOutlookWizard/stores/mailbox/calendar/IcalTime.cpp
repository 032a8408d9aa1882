#include "IcalTime.h"

#include <chrono>

namespace tarnel::mailbox {
namespace {

using namespace std::chrono;

constexpr sys_days dayZero = year{1899} / 12 / 30;

}  // namespace

icaltimetype icalTimeOf(WallSeconds wall, bool isDate) {
  const WallSeconds midnight = midnightOf(wall);
  const year_month_day day{dayZero + days{midnight / secondsPerDay}};
  const auto second = static_cast<int>(wall - midnight);
  icaltimetype time = icaltime_null_time();
  time.year = static_cast<int>(day.year());
  time.month = static_cast<int>(static_cast<unsigned>(day.month()));
  time.day = static_cast<int>(static_cast<unsigned>(day.day()));
  time.is_date = isDate ? 1 : 0;
  if (!isDate) {
    time.hour = second / 3600;
    time.minute = second / 60 % 60;
    time.second = second % 60;
  }
  return time;
}

WallSeconds wallSecondsOf(const icaltimetype& time) {
  const sys_days day = year{time.year} / static_cast<int>(time.month) / time.day;
  const WallSeconds midnight = (day - dayZero).count() * secondsPerDay;
  if (time.is_date) return midnight;
  const int ofDay = (time.hour * 60 + time.minute) * 60 + time.second;
  return midnight + ofDay;
}

}  // namespace tarnel::mailbox
