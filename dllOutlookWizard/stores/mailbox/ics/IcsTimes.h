#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "IcsLines.h"
#include "Zone.h"

namespace tarnel::mailbox {

// Ends the reading of a component.
struct BadComponent {
  IcsProblem problem;
};

// A moment as a calendar file gives it.
struct IcsTime {
  WallSeconds wall = 0;
  bool isDate = false;
  std::string tzid;  // empty: the machine's zone; "UTC"
};

// What tells which moment of a series a file means: how the series starts, in its own zone.
struct IcsSeries {
  WallSeconds start = 0;
  bool allDay = false;
  std::string tzid;  // empty: the machine's zone
  const Zone& zone;
};

// Reads moments, and knows the zones that a calendar file defines.
class IcsTimes {
 public:
  explicit IcsTimes(const IcsCalendar& calendar);

  // Throws BadComponent for a value that is no moment between 1900 and 4500, or one in an unknown zone.
  IcsTime read(const IcsProperty& property) const;
  IcsTime read(const IcsProperty& property, std::string_view value) const;
  // A zone that `read` found.
  const Zone& zone(const std::string& tzid) const;
  // The VTIMEZONE's text; empty for a zone of the tz database.
  std::string definition(const std::string& tzid) const;

  // Wall time of the machine; a date stays that date.
  WallSeconds inMachine(const IcsTime& time) const;
  // Wall time of the series' zone. A bare date means that day's occurrence; any moment of a day, in a series of whole
  // days, that day.
  WallSeconds inSeries(const IcsSeries& series, const IcsTime& time) const;

 private:
  bool isMachines(const std::string& tzid) const { return tzid.empty() || tzid == machineZone_; }

  std::map<std::string, std::string> definitions_;
  mutable std::map<std::string, Zone> zones_;
  std::optional<std::string> machineZone_;
};

// Seconds of a DURATION value; throws BadComponent.
WallSeconds readDuration(const IcsProperty& property);

}  // namespace tarnel::mailbox
