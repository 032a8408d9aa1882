#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "WallTime.h"

namespace tarnel::mailbox {

class Zone;

// When a series takes place: the moments that its rules give, in its own zone. Rules are lines: "RRULE:" with a rule
// as normalizedRule gives it, "RDATE:" with one further moment in the form 20261119T083000. Without a rule the start is
// an occurrence as well.
class Recurrence {
 public:
  // `start` is the first occurrence, on or after 1899-12-30. An all-day series counts in whole days. The text must
  // outlive this object.
  Recurrence(std::string_view rules, WallSeconds start, bool allDay) : rules_(rules), start_(start), allDay_(allDay) {}

  // The starts from `from` to `to`, both included, in their order, each once. A series that began long ago costs no
  // more than one that began just now.
  std::vector<WallSeconds> starts(WallSeconds from, WallSeconds to) const;
  // None: the series has no end.
  std::optional<WallSeconds> lastStart() const;

  // Days on which an occurrence can start: bits 0 (Sunday) to 6; bits 1 to 31. There may be bits too many.
  std::int64_t weekdays() const;
  std::int64_t monthDays() const;

 private:
  std::string_view rules_;
  WallSeconds start_;
  bool allDay_;
};

// A rule of RFC 5545 as a series keeps it: COUNT is turned into the UNTIL that it leads to, which lets a walk begin
// anywhere, and UNTIL is wall time of the series' zone. None for a text that is no rule, a rule that never takes place
// or takes place more often than hourly, or a COUNT above 100000.
std::optional<std::string> normalizedRule(const std::string& rule, WallSeconds start, bool allDay, const Zone& zone);

// The other way round, for a calendar file: UNTIL in UTC, or, with `untilIsLocal`, as the series keeps it.
std::string ruleWithUntil(const std::string& rule, bool untilIsLocal, const Zone& zone);

// A moment as rules and iCalendar texts write it, without a zone.
std::string icalText(WallSeconds moment, bool isDate = false);
// 0 for a text that is no moment.
WallSeconds wallSecondsOfText(std::string_view text);

}  // namespace tarnel::mailbox
