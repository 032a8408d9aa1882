#include "IcsTimes.h"

#include <libical/ical.h>

#include <algorithm>
#include <chrono>

#include "Conversions.h"
#include "IcalTime.h"

namespace tarnel::mailbox {
namespace {

[[noreturn]] void failTime(const IcsProperty& property, std::string_view value, const std::string& problem) {
  throw BadComponent{{property.line.number, property.name + " \"" + std::string(value) + "\" " + problem}};
}

bool isMoment(const icaltimetype& time) {
  using namespace std::chrono;
  const year_month_day day{year{time.year}, month{static_cast<unsigned>(time.month)},
                           std::chrono::day{static_cast<unsigned>(time.day)}};
  return day.ok() && time.year >= 1900 && time.year <= 4500 && time.hour < 24 && time.minute < 60 && time.second <= 60;
}

}  // namespace

IcsTimes::IcsTimes(const IcsCalendar& calendar) : machineZone_(machine::zoneName()) {
  zones_.emplace("", Zone());
  for (const IcsComponent& component : calendar.components) {
    const IcsProperty* tzid = component.find("TZID");
    if (component.kind != "VTIMEZONE" || !tzid) continue;
    std::string text;
    for (const IcsLine& line : component.lines) text += line.text + "\r\n";
    definitions_.emplace(tzid->value, std::move(text));
  }
}

const Zone& IcsTimes::zone(const std::string& tzid) const { return zones_.at(tzid); }

std::string IcsTimes::definition(const std::string& tzid) const {
  const auto found = definitions_.find(tzid);
  return found == definitions_.end() ? "" : found->second;
}

IcsTime IcsTimes::read(const IcsProperty& property) const { return read(property, property.value); }

IcsTime IcsTimes::read(const IcsProperty& property, std::string_view value) const {
  const bool isUtc = value.ends_with('Z');
  const std::size_t size = value.size() - (isUtc ? 1 : 0);
  const bool digitsOnly = value.find_first_not_of("0123456789TZ") == std::string_view::npos;
  const icaltimetype time = icaltime_from_string(std::string(value).c_str());
  if (!digitsOnly || (size != 8 && size != 15) || icaltime_is_null_time(time) || !isMoment(time))
    failTime(property, value, "is no date or time");

  IcsTime result{wallSecondsOf(time), size == 8, isUtc ? "UTC" : property.parameter("TZID")};
  if (result.isDate) result.tzid.clear();
  if (zones_.count(result.tzid) == 0) {
    auto zone = Zone::of(result.tzid, definition(result.tzid));
    if (!zone) failTime(property, value, "is in the unknown time zone \"" + result.tzid + "\"");
    zones_.emplace(result.tzid, std::move(*zone));
  }
  return result;
}

WallSeconds IcsTimes::inMachine(const IcsTime& time) const {
  // What was entered in the machine's own zone stays as it was entered, also where a clock change skips it.
  return time.isDate || isMachines(time.tzid) ? time.wall : zone(time.tzid).toMachine(time.wall);
}

WallSeconds IcsTimes::inSeries(const IcsSeries& series, const IcsTime& time) const {
  if (series.allDay) return midnightOf(time.wall);
  if (time.isDate) return time.wall + series.start - midnightOf(series.start);
  if (time.tzid == series.tzid || (isMachines(time.tzid) && isMachines(series.tzid))) return time.wall;
  return series.zone.wallOf(zone(time.tzid).unixSecondsOf(time.wall));
}

WallSeconds readDuration(const IcsProperty& property) {
  // More digits than this overflow libical's numbers.
  constexpr int mostDigits = 8;
  int digits = 0;
  for (const char each : property.value) {
    digits = each >= '0' && each <= '9' ? digits + 1 : 0;
    if (digits > mostDigits) failTime(property, property.value, "is too long for a duration");
  }
  const icaldurationtype duration = icaldurationtype_from_string(property.value.c_str());
  if (icaldurationtype_is_bad_duration(duration) || duration.is_neg)
    failTime(property, property.value, "is no duration");
  constexpr WallSeconds minute = 60;
  constexpr WallSeconds hour = 60 * minute;
  return (WallSeconds{duration.weeks} * 7 + duration.days) * secondsPerDay + duration.hours * hour +
         duration.minutes * minute + duration.seconds;
}

}  // namespace tarnel::mailbox
