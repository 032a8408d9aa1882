#include "PlainRule.h"

#include <algorithm>
#include <charconv>

#include "IcalTime.h"

namespace tarnel::mailbox {
namespace {

// None for a day with an ordinal ("2TU") or no day at all.
std::optional<std::int64_t> weekdayNamed(std::string_view name) {
  constexpr std::string_view names = "SUMOTUWETHFRSA";
  if (name.size() != 2) return {};
  for (std::size_t i = 0; i < names.size(); i += 2)
    if (names.substr(i, 2) == name) return static_cast<std::int64_t>(i / 2);
  return {};
}

// Calls `take` for each part; false as soon as one is refused.
template <class Take>
bool eachPart(std::string_view text, char separator, Take take) {
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(separator), text.size());
    if (!take(text.substr(0, end))) return false;
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return true;
}

}  // namespace

std::optional<PlainRule> PlainRule::parse(std::string_view rule, WallSeconds start) {
  PlainRule plain(start);
  bool hasFrequency = false;
  const bool isPlain = eachPart(rule, ';', [&](std::string_view part) {
    const std::size_t sign = std::min(part.find('='), part.size() - 1);
    hasFrequency = hasFrequency || part.starts_with("FREQ=");
    return plain.read(part.substr(0, sign), part.substr(sign + 1));
  });
  if (!isPlain || !hasFrequency) return {};
  return plain;
}

bool PlainRule::read(std::string_view name, std::string_view value) {
  if (name == "FREQ") {
    weekly_ = value == "WEEKLY";
    return weekly_ || value == "DAILY";
  }
  if (name == "INTERVAL") {
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), interval_);
    return error == std::errc{} && end == value.data() + value.size() && interval_ > 0;
  }
  if (name == "UNTIL") {
    const icaltimetype until = icaltime_from_string(std::string(value).c_str());
    if (icaltime_is_null_time(until)) return false;
    until_ = wallSecondsOf(until);
    return true;
  }
  if (name == "WKST") {
    const auto day = weekdayNamed(value);
    weekStart_ = day.value_or(weekStart_);
    return day.has_value();
  }
  return name == "BYDAY" && eachPart(value, ',', [&](std::string_view part) {
           const auto day = weekdayNamed(part);
           if (day) days_ |= 1 << *day;
           return day.has_value();
         });
}

std::int64_t PlainRule::weekdays() const {
  if (days_ != 0) return days_;
  if (weekly_ || interval_ % 7 == 0) return 1 << weekdayOf(start_ / secondsPerDay);
  return everyWeekday;
}

std::int64_t PlainRule::weekOf(std::int64_t day) const { return (day - (weekdayOf(day) - weekStart_ + 7) % 7) / 7; }

bool PlainRule::takesPlaceOn(std::int64_t day) const {
  if ((weekdays() >> weekdayOf(day) & 1) == 0) return false;
  const std::int64_t startDay = start_ / secondsPerDay;
  const std::int64_t distance = weekly_ ? weekOf(day) - weekOf(startDay) : day - startDay;
  return distance % interval_ == 0;
}

void PlainRule::appendStarts(WallSeconds from, WallSeconds to, std::vector<WallSeconds>& starts) const {
  const WallSeconds first = std::max(from, start_);
  const WallSeconds last = until_ ? std::min(to, *until_) : to;
  const WallSeconds timeOfDay = start_ % secondsPerDay;
  for (std::int64_t day = first / secondsPerDay; day * secondsPerDay <= last; ++day) {
    const WallSeconds at = day * secondsPerDay + timeOfDay;
    if (at >= first && at <= last && takesPlaceOn(day)) starts.push_back(at);
  }
}

}  // namespace tarnel::mailbox
