#include "Date.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <ctime>

namespace tarnel {
namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr std::int64_t secondsPerDay = 86400;
constexpr sys_days dayZero = year{1899} / 12 / 30;

// A day number as whole days since day zero and whole seconds since that day's midnight.
struct DayAndSecond {
  std::int64_t wholeDays;
  std::int64_t second;
};

DayAndSecond split(Date date) {
  const double whole = std::trunc(date.days);
  const double fraction = std::abs(date.days - whole);
  DayAndSecond result{static_cast<std::int64_t>(whole), std::llround(fraction * static_cast<double>(secondsPerDay))};
  if (result.second == secondsPerDay) result = {result.wholeDays + 1, 0};
  return result;
}

std::optional<int> digits(std::string_view text, std::size_t from, std::size_t count) {
  if (from + count > text.size()) return {};
  const std::string_view part = text.substr(from, count);
  int value = 0;
  const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), value);
  if (error != std::errc{} || end != part.data() + part.size() || part.front() == '-') return {};
  return value;
}

bool isTimeOfDay(int hour, int minute, int second) { return hour < 24 && minute < 60 && second < 60; }

// Takes ":SS" and a fraction off the front; 0 where no seconds are told, none for what can't be read.
std::optional<int> takeSecond(std::string_view& text) {
  if (!text.starts_with(':')) return 0;
  const auto second = digits(text, 1, 2);
  if (!second) return {};
  text.remove_prefix(3);
  if (!text.starts_with('.') && !text.starts_with(',')) return second;
  const std::size_t end = std::min(text.find_first_not_of("0123456789", 1), text.size());
  if (end == 1) return {};
  text.remove_prefix(end);
  return second;
}

// "Z", "+HH:MM", "-HHMM" or "+HH": how far a place's time is ahead of UTC.
std::optional<int> minutesFromUtc(std::string_view text) {
  if (text == "Z") return 0;
  if (!text.starts_with('+') && !text.starts_with('-')) return {};
  const auto hours = digits(text, 1, 2);
  const std::size_t at = text.size() == 6 && text[3] == ':' ? 4 : 3;
  const auto minutes = text.size() == 3 ? 0 : digits(text, at, 2);
  if (!hours || !minutes || (text.size() != 3 && text.size() != at + 2) || !isTimeOfDay(*hours, *minutes, 0)) return {};
  const int distance = *hours * 60 + *minutes;
  return text.front() == '-' ? -distance : distance;
}

// The same moment on this machine's clocks; none past the dates that there are.
std::optional<Date> localOf(Date there, int minutesAhead) {
  const CivilTime c = there.civil();
  std::tm utc{};
  utc.tm_year = c.year - 1900, utc.tm_mon = c.month - 1, utc.tm_mday = c.day;
  utc.tm_hour = c.hour, utc.tm_min = c.minute - minutesAhead, utc.tm_sec = c.second;
  const std::time_t moment = timegm(&utc);
  std::tm local{};
  if (!localtime_r(&moment, &local) || local.tm_year + 1900 < 100 || local.tm_year + 1900 > 9999) return {};
  return Date::of(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
}

}  // namespace

bool Date::canBe(double days) {
  constexpr double halfSecond = 0.5 / static_cast<double>(secondsPerDay);
  return days > -657435 && days < 2958466 - halfSecond;
}

Date Date::of(const CivilTime& civil) {
  const sys_days at =
      year{civil.year} / month{static_cast<unsigned>(civil.month)} / day{static_cast<unsigned>(civil.day)};
  const double whole = static_cast<double>((at - dayZero).count());
  const int seconds = civil.hour * 3600 + civil.minute * 60 + civil.second;
  const double fraction = static_cast<double>(seconds) / static_cast<double>(secondsPerDay);
  return {whole < 0 ? whole - fraction : whole + fraction};
}

CivilTime Date::civil() const {
  const DayAndSecond at = split(*this);
  const year_month_day ymd{dayZero + std::chrono::days{at.wholeDays}};
  const auto second = static_cast<int>(at.second);
  return {static_cast<int>(ymd.year()),
          static_cast<int>(static_cast<unsigned>(ymd.month())),
          static_cast<int>(static_cast<unsigned>(ymd.day())),
          second / 3600,
          second / 60 % 60,
          second % 60};
}

Date Date::wholeDay() const { return {static_cast<double>(split(*this).wholeDays)}; }

bool Date::isMidnight() const { return split(*this).second == 0; }

std::int32_t Date::minuteOfDay() const { return static_cast<std::int32_t>(split(*this).second / 60); }

std::int32_t minutesBetween(Date from, Date to) {
  const auto minutes = [](Date date) {
    const DayAndSecond at = split(date);
    return at.wholeDays * 1440 + at.second / 60;
  };
  return static_cast<std::int32_t>(minutes(to) - minutes(from));
}

std::string isoText(Date date) {
  const CivilTime c = date.civil();
  std::array<char, 64> text{};
  const int length = std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", c.year, c.month, c.day,
                                   c.hour, c.minute, c.second);
  return {text.data(), static_cast<std::size_t>(length)};
}

std::optional<Date> parseIsoDate(std::string_view text) {
  const auto y = digits(text, 0, 4), m = digits(text, 5, 2), d = digits(text, 8, 2);
  if (!y || !m || !d || *y < 100 || text[4] != '-' || text[7] != '-') return {};
  if (!year_month_day{year{*y}, month{static_cast<unsigned>(*m)}, day{static_cast<unsigned>(*d)}}.ok()) return {};
  if (text.size() == 10) return Date::of(*y, *m, *d);

  const auto hour = digits(text, 11, 2), minute = digits(text, 14, 2);
  if (!hour || !minute || (text[10] != ' ' && text[10] != 'T') || text[13] != ':') return {};
  text.remove_prefix(16);
  const auto second = takeSecond(text);
  if (!second || !isTimeOfDay(*hour, *minute, *second)) return {};
  const Date read = Date::of(*y, *m, *d, *hour, *minute, *second);
  if (text.empty()) return read;
  const auto distance = minutesFromUtc(text);
  return distance ? localOf(read, *distance) : std::nullopt;
}

}  // namespace tarnel
