#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "WallTime.h"

struct _icaltimezone;

namespace tarnel::mailbox {

// The machine's own zone, as the environment (TZ) gives it. `unixSeconds` count from 1970-01-01 00:00 UTC. A wall time
// that a clock change skips is read as if the clock had not changed; of one that comes twice, the system picks.
namespace machine {
WallSeconds wallOf(std::int64_t unixSeconds);
std::int64_t unixSecondsOf(WallSeconds wall);
// The zone's name in the tz database; none when the system doesn't tell.
std::optional<std::string> zoneName();
}  // namespace machine

// A time zone of a calendar file, or the machine's own.
class Zone {
 public:
  // The machine's own.
  Zone() = default;
  static Zone utc();
  // From the text of a VTIMEZONE, or, where that is empty or no zone, from the tz database by its name. None when
  // neither gives one.
  static std::optional<Zone> of(const std::string& tzid, const std::string& definition);

  bool isMachine() const { return !zone_; }
  // From this zone's wall time to the machine's.
  WallSeconds toMachine(WallSeconds wall) const;
  std::int64_t unixSecondsOf(WallSeconds wall) const;
  WallSeconds wallOf(std::int64_t unixSeconds) const;

 private:
  std::shared_ptr<_icaltimezone> zone_;
};

// The VTIMEZONE's text of a zone of the tz database, under that name; empty for an unknown one.
std::string zoneDefinition(const std::string& tzid);

}  // namespace tarnel::mailbox
