#pragma once

#include <optional>
#include <string>
#include <vector>

#include "IcsTimes.h"
#include "ItemRecord.h"
#include "NamedProperty.h"

namespace tarnel::mailbox {

// A VEVENT or VTODO in the store's terms, before it is matched with what the store has.
struct IcsItem {
  ItemRecord record;
  std::vector<NamedProperty> properties;
  std::string tzid;                     // the zone of a series
  std::vector<WallSeconds> deleted;     // deleted occurrences, in the series' zone
  std::optional<IcsTime> recurrenceId;  // this one replaces an occurrence
  bool cancelled = false;
  int line = 0;
};

// Names of our own properties in a calendar file.
namespace ics {
inline constexpr const char* userProperty = "X-TARNEL-USER-PROPERTY";  // with a parameter X-NAME
inline constexpr const char* userPropertyName = "X-NAME";
inline constexpr const char* status = "X-TARNEL-STATUS";           // WAITING, for which VTODO has no word
inline constexpr const char* totalWork = "X-TARNEL-TOTAL-WORK";    // minutes
inline constexpr const char* actualWork = "X-TARNEL-ACTUAL-WORK";  // minutes
}  // namespace ics

// Throws BadComponent when it can't be taken. `now` dates the completion of a task whose component doesn't.
IcsItem readIcsItem(const IcsComponent& component, const IcsTimes& times, WallSeconds now);

}  // namespace tarnel::mailbox
