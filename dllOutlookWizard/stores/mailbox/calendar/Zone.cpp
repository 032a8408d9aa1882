#include "Zone.h"

#include <libical/ical.h>
#include <stdlib.h>
#include <time.h>

#include <filesystem>
#include <fstream>

#include "IcalTime.h"

namespace tarnel::mailbox {
namespace {

constexpr WallSeconds unixEpoch = 25569 * secondsPerDay;  // 1970-01-01

std::int64_t utcOffset(icaltimezone* zone, WallSeconds wall, bool wallIsUtc) {
  icaltimetype time = icalTimeOf(wall);
  int isDaylight = 0;
  return wallIsUtc ? icaltimezone_get_utc_offset_of_utc_time(zone, &time, &isDaylight)
                   : icaltimezone_get_utc_offset(zone, &time, &isDaylight);
}

// Zones of the tz database belong to libical.
std::shared_ptr<icaltimezone> borrowed(icaltimezone* zone) {
  return {zone, [](icaltimezone*) {}};
}

// Whether the zone's clock changes by rules that come once a year or once a month. libical keeps a list of all changes,
// which one rule that is denser makes endless.
bool changesSeldom(icalcomponent* definition) {
  for (icalcomponent* part = icalcomponent_get_first_component(definition, ICAL_ANY_COMPONENT); part;
       part = icalcomponent_get_next_component(definition, ICAL_ANY_COMPONENT))
    for (icalproperty* rule = icalcomponent_get_first_property(part, ICAL_RRULE_PROPERTY); rule;
         rule = icalcomponent_get_next_property(part, ICAL_RRULE_PROPERTY))
      if (icalproperty_get_rrule(rule).freq < ICAL_MONTHLY_RECURRENCE) return false;
  return true;
}

std::shared_ptr<icaltimezone> fromDefinition(const std::string& definition) {
  icalcomponent* component = icalparser_parse_string(definition.c_str());
  if (!component) return {};
  std::shared_ptr<icaltimezone> zone(icaltimezone_new(), [](icaltimezone* each) { icaltimezone_free(each, 1); });
  if (icalcomponent_isa(component) == ICAL_VTIMEZONE_COMPONENT && changesSeldom(component) &&
      icaltimezone_set_component(zone.get(), component) != 0)
    return zone;
  icalcomponent_free(component);
  return {};
}

}  // namespace

namespace machine {

WallSeconds wallOf(std::int64_t unixSeconds) {
  const time_t moment = unixSeconds;
  tm local{};
  tzset();
  localtime_r(&moment, &local);
  return unixEpoch + unixSeconds + local.tm_gmtoff;
}

std::int64_t unixSecondsOf(WallSeconds wall) {
  const icaltimetype civil = icalTimeOf(wall);
  tm local{};
  local.tm_year = civil.year - 1900;
  local.tm_mon = civil.month - 1;
  local.tm_mday = civil.day;
  local.tm_hour = civil.hour;
  local.tm_min = civil.minute;
  local.tm_sec = civil.second;
  local.tm_isdst = -1;
  return mktime(&local);
}

std::optional<std::string> zoneName() {
  constexpr std::string_view folder = "zoneinfo/";
  const char* variable = getenv("TZ");
  std::string name = variable ? variable : "";
  if (name.starts_with(':')) name.erase(0, 1);
  if (name.empty() && !variable) {
    std::error_code none;
    name = std::filesystem::weakly_canonical("/etc/localtime", none).string();
  }
  if (const auto at = name.rfind(folder); at != std::string::npos) name.erase(0, at + folder.size());
  if (name.empty() || name.starts_with('/') || !icaltimezone_get_builtin_timezone(name.c_str())) return {};
  return name;
}

}  // namespace machine

Zone Zone::utc() {
  Zone zone;
  zone.zone_ = borrowed(icaltimezone_get_utc_timezone());
  return zone;
}

std::optional<Zone> Zone::of(const std::string& tzid, const std::string& definition) {
  Zone zone;
  if (!definition.empty()) zone.zone_ = fromDefinition(definition);
  if (!zone.zone_ && tzid == "UTC") return utc();
  if (!zone.zone_) {
    icaltimezone* known = icaltimezone_get_builtin_timezone(tzid.c_str());
    if (!known) return {};
    zone.zone_ = borrowed(known);
  }
  return zone;
}

std::int64_t Zone::unixSecondsOf(WallSeconds wall) const {
  if (!zone_) return machine::unixSecondsOf(wall);
  return wall - unixEpoch - utcOffset(zone_.get(), wall, false);
}

WallSeconds Zone::wallOf(std::int64_t unixSeconds) const {
  if (!zone_) return machine::wallOf(unixSeconds);
  return unixSeconds + unixEpoch + utcOffset(zone_.get(), unixSeconds + unixEpoch, true);
}

WallSeconds Zone::toMachine(WallSeconds wall) const { return zone_ ? machine::wallOf(unixSecondsOf(wall)) : wall; }

std::string zoneDefinition(const std::string& tzid) {
  icaltimezone* zone = icaltimezone_get_builtin_timezone(tzid.c_str());
  icalcomponent* known = zone ? icaltimezone_get_component(zone) : nullptr;
  if (!known) return {};
  const std::unique_ptr<icalcomponent, void (*)(icalcomponent*)> component(icalcomponent_new_clone(known),
                                                                           icalcomponent_free);
  // libical puts a prefix of its own before the name.
  if (icalproperty* name = icalcomponent_get_first_property(component.get(), ICAL_TZID_PROPERTY))
    icalproperty_set_tzid(name, tzid.c_str());
  char* text = icalcomponent_as_ical_string_r(component.get());
  std::string definition = text ? text : "";
  icalmemory_free_buffer(text);
  return definition;
}

}  // namespace tarnel::mailbox
