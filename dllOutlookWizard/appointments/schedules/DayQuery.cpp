#include "DayQuery.h"

#include <array>
#include <cstdio>

#include "Conversions.h"
#include "Failure.h"
#include "Platform.h"

namespace tarnel {
namespace {

struct Span {
  Date from;
  Date to;
};

Date daysBehind(Date date, double days) { return {date.days + days}; }

Date dateOf(const std::string& mode) {
  if (const auto date = platform().locale.parseDate(mode)) return *date;
  if (const auto date = parseIsoDate(mode)) return *date;
  throw Failure(failure::typeMismatch, "Type mismatch: \"" + mode + "\" is no date to show appointments of");
}

Span spanOf(const std::string& mode, bool wholeWeek, Date day) {
  if (mode == "TODAY") {
    const Date today = platform().clock.now().wholeDay();
    return {today, daysBehind(today, 1)};
  }
  if (mode == "CURRENTDATE") return {day, daysBehind(day.wholeDay(), 1)};
  const Date date = dateOf(mode);
  return {date, daysBehind(date, wholeWeek ? 6 : 1)};
}

std::string jetDate(Date date) {
  const CivilTime c = date.civil();
  std::array<char, 64> text{};
  const int length = std::snprintf(text.data(), text.size(), "#%02d/%02d/%04d %02d:%02d:%02d#", c.month, c.day, c.year,
                                   c.hour, c.minute, c.second);
  return {text.data(), static_cast<std::size_t>(length)};
}

}  // namespace

std::string dayQuery(std::string_view mode, bool wholeWeek, Date day) {
  const Span span = spanOf(toUpper(mode), wholeWeek, day);
  return "SELECT * from TaskAPPTS WHERE taStartTime >= " + jetDate(span.from) +
         " AND taStartTime <= " + jetDate(span.to) + "ORDER BY taStartTime";
}

}  // namespace tarnel
