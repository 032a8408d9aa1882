#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "WallTime.h"

namespace tarnel::mailbox {

// The rules that most series have: daily or weekly, with INTERVAL, UNTIL, WKST and days of the week, and nothing more.
// Their days follow from day numbers alone, which is some twenty times faster than setting up libical's iterator; the
// tests hold both against each other.
class PlainRule {
 public:
  // None for a rule that has more to it.
  static std::optional<PlainRule> parse(std::string_view rule, WallSeconds start);

  // Appends the starts from `from` to `to`, both included, in their order.
  void appendStarts(WallSeconds from, WallSeconds to, std::vector<WallSeconds>& starts) const;
  // Bits 0 (Sunday) to 6 of the days on which it can take place.
  std::int64_t weekdays() const;

 private:
  explicit PlainRule(WallSeconds start) : start_(start) {}
  bool read(std::string_view name, std::string_view value);
  bool takesPlaceOn(std::int64_t day) const;
  std::int64_t weekOf(std::int64_t day) const;

  WallSeconds start_;
  bool weekly_ = false;
  std::int64_t interval_ = 1;
  std::int64_t days_ = 0;       // BYDAY; 0: none given
  std::int64_t weekStart_ = 1;  // Monday, where a rule doesn't say
  std::optional<WallSeconds> until_;
};

// Masks of days: bits 0 (Sunday) to 6 of a week, bits 1 to 31 of a month.
inline constexpr std::int64_t everyWeekday = 0x7F;
inline constexpr std::int64_t everyMonthDay = 0xFFFFFFFE;

// Of a day number: 0 (Sunday) to 6.
inline std::int64_t weekdayOf(std::int64_t day) { return ((day + 6) % 7 + 7) % 7; }

}  // namespace tarnel::mailbox
