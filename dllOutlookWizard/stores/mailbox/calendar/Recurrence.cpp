#include "Recurrence.h"

#include <algorithm>
#include <memory>

#include "IcalTime.h"
#include "PlainRule.h"
#include "Zone.h"

namespace tarnel::mailbox {
namespace {

constexpr std::string_view rulePrefix = "RRULE:";
constexpr std::string_view extraPrefix = "RDATE:";
// A COUNT beyond this is refused: its end would be looked for too long.
constexpr int mostOccurrences = 100000;

template <class Take>
void eachLine(std::string_view rules, std::string_view prefix, Take take) {
  while (!rules.empty()) {
    const std::size_t end = std::min(rules.find('\n'), rules.size());
    if (rules.starts_with(prefix)) take(rules.substr(prefix.size(), end - prefix.size()));
    rules.remove_prefix(std::min(end + 1, rules.size()));
  }
}

// The moments beside those of rules. A series without a rule has its start as one, which a rule would give.
template <class Take>
void eachExtra(std::string_view rules, WallSeconds start, Take take) {
  if (rules.find(rulePrefix) == std::string_view::npos) take(start);
  eachLine(rules, extraPrefix, [&](std::string_view text) { take(wallSecondsOfText(text)); });
}

icalrecurrencetype parseRule(std::string_view rule) {
  icalrecurrencetype parsed = icalrecurrencetype_from_string(std::string(rule).c_str());
  if (parsed.rscale) {
    // Other calendars than ours are not for us.
    icalmemory_free_buffer(parsed.rscale);
    icalrecurrencetype_clear(&parsed);
    parsed.freq = ICAL_NO_RECURRENCE;
  }
  return parsed;
}

// libical's walk through one rule.
class RuleWalk {
 public:
  RuleWalk(const icalrecurrencetype& rule, WallSeconds start, bool allDay)
      : iterator_(icalrecur_iterator_new(rule, icalTimeOf(start, allDay)), icalrecur_iterator_free), allDay_(allDay) {}

  void skipTo(WallSeconds from) {
    if (iterator_) icalrecur_iterator_set_start(iterator_.get(), icalTimeOf(from, allDay_));
  }
  std::optional<WallSeconds> next() {
    if (!iterator_) return {};
    const icaltimetype time = icalrecur_iterator_next(iterator_.get());
    if (icaltime_is_null_time(time)) return {};
    return wallSecondsOf(time);
  }

 private:
  std::unique_ptr<icalrecur_iterator, void (*)(icalrecur_iterator*)> iterator_;
  bool allDay_;
};

// Skipping loses the count of hours in libical, so that an hourly walk begins at a step of its own instead; at least a
// day before, since libical's first hour of a walk with BYHOUR may come late.
WallSeconds alignedHour(const icalrecurrencetype& rule, WallSeconds start, WallSeconds from) {
  const WallSeconds step = WallSeconds{3600} * std::max<WallSeconds>(rule.interval, 1);
  const WallSeconds early = from - secondsPerDay;
  return early > start ? start + (early - start) / step * step : start;
}

void appendRuleStarts(std::string_view rule, WallSeconds start, bool allDay, WallSeconds from, WallSeconds to,
                      std::vector<WallSeconds>& starts) {
  if (const auto plain = PlainRule::parse(rule, start)) return plain->appendStarts(from, to, starts);
  const icalrecurrencetype parsed = parseRule(rule);
  // No rule that an import takes repeats by minutes; in a mailbox from elsewhere one would fill each day without end.
  if (parsed.freq == ICAL_NO_RECURRENCE || parsed.freq < ICAL_HOURLY_RECURRENCE) return;
  const bool hourly = parsed.freq == ICAL_HOURLY_RECURRENCE;
  RuleWalk walk(parsed, hourly ? alignedHour(parsed, start, from) : start, allDay);
  if (from > start && !hourly) walk.skipTo(from);
  while (const auto at = walk.next()) {
    if (*at > to) break;
    if (*at >= from) starts.push_back(*at);
  }
}

bool hasPart(const short* part) { return part[0] != ICAL_RECURRENCE_ARRAY_MAX; }

std::int64_t weekdaysOf(const icalrecurrencetype& rule, WallSeconds start) {
  if (rule.freq < ICAL_DAILY_RECURRENCE) return everyWeekday;
  std::int64_t days = 0;
  for (const short* day = rule.by_day; *day != ICAL_RECURRENCE_ARRAY_MAX; ++day)
    days |= 1 << (icalrecurrencetype_day_day_of_week(*day) - ICAL_SUNDAY_WEEKDAY);
  if (days != 0) return days;
  return rule.freq == ICAL_WEEKLY_RECURRENCE ? 1 << weekdayOf(start / secondsPerDay) : everyWeekday;
}

std::int64_t monthDaysOf(const icalrecurrencetype& rule, WallSeconds start) {
  if (rule.freq < ICAL_MONTHLY_RECURRENCE || hasPart(rule.by_day) || hasPart(rule.by_year_day) ||
      hasPart(rule.by_week_no))
    return everyMonthDay;
  if (!hasPart(rule.by_month_day)) return std::int64_t{1} << icalTimeOf(start).day;
  std::int64_t days = 0;
  for (const short* day = rule.by_month_day; *day != ICAL_RECURRENCE_ARRAY_MAX; ++day) {
    if (*day < 0) return everyMonthDay;
    days |= std::int64_t{1} << *day;
  }
  return days;
}

std::string ruleText(icalrecurrencetype& rule) {
  char* text = icalrecurrencetype_as_string_r(&rule);
  std::string result = text ? text : "";
  icalmemory_free_buffer(text);
  return result;
}

}  // namespace

std::vector<WallSeconds> Recurrence::starts(WallSeconds from, WallSeconds to) const {
  std::vector<WallSeconds> found;
  bool severalLines = false;
  eachLine(rules_, rulePrefix, [&](std::string_view rule) {
    severalLines = severalLines || !found.empty();
    appendRuleStarts(rule, start_, allDay_, from, to, found);
  });
  eachExtra(rules_, start_, [&](WallSeconds at) {
    severalLines = true;
    if (at >= from && at <= to) found.push_back(at);
  });
  if (severalLines) {
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
  }
  return found;
}

std::optional<WallSeconds> Recurrence::lastStart() const {
  std::optional<WallSeconds> last = start_;
  bool endless = false;
  eachLine(rules_, rulePrefix, [&](std::string_view rule) {
    const icalrecurrencetype parsed = parseRule(rule);
    if (icaltime_is_null_time(parsed.until))
      endless = true;
    else
      last = std::max(*last, wallSecondsOf(parsed.until));
  });
  eachExtra(rules_, start_, [&](WallSeconds at) { last = std::max(*last, at); });
  return endless ? std::nullopt : last;
}

std::int64_t Recurrence::weekdays() const {
  std::int64_t days = 0;
  eachLine(rules_, rulePrefix, [&](std::string_view rule) { days |= weekdaysOf(parseRule(rule), start_); });
  eachExtra(rules_, start_, [&](WallSeconds at) { days |= 1 << weekdayOf(at / secondsPerDay); });
  return days;
}

std::int64_t Recurrence::monthDays() const {
  std::int64_t days = 0;
  eachLine(rules_, rulePrefix, [&](std::string_view rule) { days |= monthDaysOf(parseRule(rule), start_); });
  eachExtra(rules_, start_, [&](WallSeconds at) { days |= std::int64_t{1} << icalTimeOf(at).day; });
  return days;
}

std::optional<std::string> normalizedRule(const std::string& rule, WallSeconds start, bool allDay, const Zone& zone) {
  icalrecurrencetype parsed = parseRule(rule);
  if (parsed.freq == ICAL_NO_RECURRENCE || parsed.freq < ICAL_HOURLY_RECURRENCE) return {};
  if (!icaltime_is_null_time(parsed.until)) {
    WallSeconds until = wallSecondsOf(parsed.until);
    if (icaltime_is_utc(parsed.until)) until = zone.wallOf(Zone::utc().unixSecondsOf(until));
    // A timed series that is told to end on a day takes that day in.
    if (parsed.until.is_date && !allDay) until += secondsPerDay - 1;
    parsed.until = icalTimeOf(until, allDay);
  }
  RuleWalk walk(parsed, start, allDay);
  std::optional<WallSeconds> last = walk.next();
  if (!last) return {};
  if (parsed.count > mostOccurrences) return {};
  if (parsed.count > 0) {
    while (const auto next = walk.next()) last = next;
    parsed.count = 0;
    parsed.until = icalTimeOf(*last, allDay);
  }
  return ruleText(parsed);
}

std::string ruleWithUntil(const std::string& rule, bool untilIsLocal, const Zone& zone) {
  icalrecurrencetype parsed = parseRule(rule);
  if (untilIsLocal || icaltime_is_null_time(parsed.until)) return rule;
  parsed.until = icalTimeOf(Zone::utc().wallOf(zone.unixSecondsOf(wallSecondsOf(parsed.until))));
  parsed.until.zone = icaltimezone_get_utc_timezone();
  return ruleText(parsed);
}

std::string icalText(WallSeconds moment, bool isDate) {
  char* text = icaltime_as_ical_string_r(icalTimeOf(moment, isDate));
  std::string result = text ? text : "";
  icalmemory_free_buffer(text);
  return result;
}

WallSeconds wallSecondsOfText(std::string_view text) {
  const icaltimetype time = icaltime_from_string(std::string(text).c_str());
  return icaltime_is_null_time(time) ? 0 : wallSecondsOf(time);
}

}  // namespace tarnel::mailbox
