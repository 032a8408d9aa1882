#include "Locale.h"

#include <langinfo.h>

#include <array>
#include <cctype>
#include <chrono>
#include <ctime>

namespace tarnel {
namespace {

void replaceAll(std::string& text, std::string_view what, std::string_view with) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size())
    text.replace(at, what.size(), with);
}

// Only formats made of day, month and year can be read back; any other gives way to the default.
std::string readableShortDate(std::string format) {
  replaceAll(format, "%D", "%m/%d/%y");
  replaceAll(format, "%F", "%Y-%m-%d");
  replaceAll(format, "%e", "%d");
  replaceAll(format, "%-d", "%d");
  replaceAll(format, "%-m", "%m");
  replaceAll(format, "%y", "%Y");
  bool day = false, month = false, year = false;
  for (std::size_t i = 0; i + 1 < format.size(); ++i) {
    if (format[i] != '%') continue;
    ++i;
    day |= format[i] == 'd';
    month |= format[i] == 'm';
    year |= format[i] == 'Y';
    if (std::string_view("dmY").find(format[i]) == std::string_view::npos) return Locale::Formats{}.shortDate;
  }
  return day && month && year ? format : Locale::Formats{}.shortDate;
}

// The system keeps no long date of its own: names in its language, the day where its short date has it.
std::string longDateLike(const std::string& shortDate) {
  return shortDate.find("%m") < shortDate.find("%d") && !shortDate.starts_with("%Y") ? Locale::Formats{}.longDate
                                                                                     : "%A, %d %B %Y";
}

std::string withoutSeconds(std::string longTime) {
  for (const std::string_view seconds : {":%S", ".%S"}) replaceAll(longTime, seconds, "");
  return longTime.find("%S") == std::string::npos ? longTime : Locale::Formats{}.shortTime;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Takes one number off the front. None when there is none or it has more than `maxDigits` digits.
std::optional<int> takeNumber(std::string_view& text, std::size_t maxDigits) {
  int number = 0;
  std::size_t count = 0;
  while (count < text.size() && isDigit(text[count])) {
    if (count == maxDigits) return {};
    number = number * 10 + (text[count++] - '0');
  }
  if (count == 0) return {};
  text.remove_prefix(count);
  return number;
}

bool take(std::string_view& text, char c) {
  if (!text.starts_with(c)) return false;
  text.remove_prefix(1);
  return true;
}

// "8:30", "08:30:15", "8:30 PM"; hour 12 AM is midnight.
bool readTime(std::string_view text, CivilTime& civil) {
  const auto hour = takeNumber(text, 2);
  if (!hour || !take(text, ':')) return false;
  const auto minute = takeNumber(text, 2);
  if (!minute) return false;
  std::optional<int> second = 0;
  if (take(text, ':')) second = takeNumber(text, 2);
  if (!second) return false;
  civil.hour = *hour;
  civil.minute = *minute;
  civil.second = *second;
  take(text, ' ');
  if (!text.empty()) {
    const bool pm = text == "PM" || text == "pm";
    if (!pm && text != "AM" && text != "am") return false;
    if (civil.hour < 1 || civil.hour > 12) return false;
    civil.hour = civil.hour % 12 + (pm ? 12 : 0);
  }
  return civil.hour < 24 && civil.minute < 60 && civil.second < 60;
}

// A year of two digits is left out: which century it means can't be told.
bool isCalendarDay(const CivilTime& civil) {
  using namespace std::chrono;
  return civil.year >= 100 && civil.month >= 1 && civil.day >= 1 &&
         year_month_day{year{civil.year}, month{static_cast<unsigned>(civil.month)},
                        day{static_cast<unsigned>(civil.day)}}
             .ok();
}

using Names = std::shared_ptr<std::remove_pointer_t<locale_t>>;

void releaseNames(locale_t names) {
  if (names) freelocale(names);
}

Names englishNames() {
  static const Names names(newlocale(LC_ALL_MASK, "C", nullptr), releaseNames);
  return names;
}

}  // namespace

Locale::Locale(Formats formats) : formats_(std::move(formats)), names_(englishNames()) {}

Locale Locale::ofSystem() {
  const Names system(newlocale(LC_TIME_MASK | LC_CTYPE_MASK, "", nullptr), releaseNames);
  if (!system) return {};
  Formats formats;
  formats.shortDate = readableShortDate(nl_langinfo_l(D_FMT, system.get()));
  formats.longDate = longDateLike(formats.shortDate);
  formats.longTime = nl_langinfo_l(T_FMT, system.get());
  replaceAll(formats.longTime, "%r", "%I:%M:%S %p");
  replaceAll(formats.longTime, "%T", "%H:%M:%S");
  formats.shortTime = withoutSeconds(formats.longTime);
  Locale locale(formats);
  if (nl_langinfo_l(CODESET, system.get()) == std::string_view("UTF-8")) locale.names_ = system;
  return locale;
}

std::string Locale::text(Date date, const std::string& format) const {
  const CivilTime civil = date.civil();
  std::tm tm{};
  tm.tm_year = civil.year - 1900;
  tm.tm_mon = civil.month - 1;
  tm.tm_mday = civil.day;
  tm.tm_hour = civil.hour;
  tm.tm_min = civil.minute;
  tm.tm_sec = civil.second;
  // The weekday follows from the day number: day 0, 1899-12-30, was a Saturday.
  const auto wholeDays = static_cast<long>(date.wholeDay().days);
  tm.tm_wday = static_cast<int>(((wholeDays + 6) % 7 + 7) % 7);
  std::array<char, 256> result{};
  return {result.data(), strftime_l(result.data(), result.size(), format.c_str(), &tm, names_.get())};
}

std::string Locale::generalDate(Date date) const {
  return date.isMidnight() ? shortDate(date) : shortDate(date) + " " + longTime(date);
}

std::optional<Date> Locale::parseDate(std::string_view text) const {
  CivilTime civil;
  for (std::size_t i = 0; i < formats_.shortDate.size(); ++i) {
    if (formats_.shortDate[i] != '%') {
      if (!take(text, formats_.shortDate[i])) return {};
      continue;
    }
    const char part = formats_.shortDate[++i];
    const auto number = takeNumber(text, part == 'Y' ? 4 : 2);
    if (!number) return {};
    (part == 'Y' ? civil.year : part == 'm' ? civil.month : civil.day) = *number;
  }
  if (!isCalendarDay(civil)) return {};
  if (!text.empty() && (!take(text, ' ') || !readTime(text, civil))) return {};
  return Date::of(civil);
}

}  // namespace tarnel
