#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnel {

// A date on the calendar with the time of day, local wall time, no zone.
struct CivilTime {
  int year = 1899;
  int month = 12;  // 1 to 12
  int day = 30;    // 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;

  friend bool operator==(const CivilTime&, const CivilTime&) = default;
};

// A date as a day number: whole days since 1899-12-30, the time of day as a fraction (OLE automation's date).
// Before that day the fraction still counts forwards: -1.25 is 1899-12-29 06:00. Every question about it is answered
// for the nearest second.
struct Date {
  // Within the years 0100 to 9999.
  double days = 0;

  // Whether a number lies within them.
  static bool canBe(double days);
  static Date of(const CivilTime& civil);
  static Date of(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
    return of(CivilTime{year, month, day, hour, minute, second});
  }

  CivilTime civil() const;
  // The same day at midnight.
  Date wholeDay() const;
  bool isMidnight() const;
  // Whole minutes since midnight, 0 to 1439; seconds are cut off.
  std::int32_t minuteOfDay() const;

  friend auto operator<=>(const Date&, const Date&) = default;
};

// The last day that can be shown: what is read of a day goes up to the midnight of the next one.
inline Date lastDayShown() { return Date::of(9999, 12, 30); }

// Minutes from one moment to another, counted in minute boundaries; negative when `to` lies before `from`.
std::int32_t minutesBetween(Date from, Date to);

// "2026-11-19 08:30:00", years 0100 to 9999.
std::string isoText(Date date);
// Reads "YYYY-MM-DD", optionally with " HH:MM[:SS]" or "THH:MM[:SS]" after it, of these years. After the seconds there
// may be a fraction, which is cut off. A time that ends with "Z" or its distance from UTC, "+HH:MM", is told in the
// machine's zone. None for any other text.
std::optional<Date> parseIsoDate(std::string_view text);

}  // namespace tarnel
