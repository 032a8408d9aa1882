#include "Occurrences.h"

#include <algorithm>
#include <array>

#include "PlainRule.h"
#include "Recurrence.h"

namespace tarnel::mailbox {
namespace {

constexpr WallSeconds openSide = 366 * secondsPerDay;
// Wall times of two zones lie at most 26 hours apart.
constexpr WallSeconds zoneSlack = 26 * 3600;

std::int64_t nextWeekdays(std::int64_t days) { return (days << 1 | days >> 6) & everyWeekday; }
std::int64_t previousWeekdays(std::int64_t days) { return (days >> 1 | days << 6) & everyWeekday; }

// The day behind a month's last one is the first; a month's last days are the 28th to the 31st.
constexpr std::int64_t lastDays = std::int64_t{0xF} << 28;
std::int64_t nextMonthDays(std::int64_t days) { return (days << 1 | ((days & lastDays) ? 2 : 0)) & everyMonthDay; }
std::int64_t previousMonthDays(std::int64_t days) { return (days >> 1 | ((days & 2) ? lastDays : 0)) & everyMonthDay; }

struct Span {
  WallSeconds from;
  WallSeconds to;
};

Span spanOf(const ItemQuery& query, const Clock& clock) {
  const WallSeconds now = wallSecondsOf(clock.now());
  Span span{query.span.from.value_or(std::min(now, query.span.to.value_or(now)) - openSide),
            query.span.to.value_or(std::max(now, query.span.from.value_or(now)) + openSide)};
  return span;
}

// The masks of the days that a span touches.
std::int64_t weekdaysIn(const Span& span) {
  std::int64_t days = 0;
  for (WallSeconds day = midnightOf(span.from); day <= span.to && days != everyWeekday; day += secondsPerDay)
    days |= 1 << weekdayOf(day / secondsPerDay);
  return days;
}

std::int64_t monthDaysIn(const Span& span) {
  if (span.to - span.from > 31 * secondsPerDay) return everyMonthDay;
  std::int64_t days = 0;
  for (WallSeconds day = midnightOf(span.from); day <= span.to; day += secondsPerDay)
    days |= std::int64_t{1} << dateOf(day).civil().day;
  return days;
}

struct SeriesRow {
  std::int64_t id;
  std::string recurrence;
  std::optional<std::int64_t> zone;
  WallSeconds seriesStart;
  WallSeconds length;
  bool allDay;
};

void addOccurrences(Mailbox& mailbox, const SeriesRow& series, const Span& span) {
  const Zone& zone = mailbox.zones.at(series.zone);
  const WallSeconds slack = zone.isMachine() ? 0 : zoneSlack;
  const Recurrence recurrence(series.recurrence, series.seriesStart, series.allDay);
  for (const WallSeconds original : recurrence.starts(span.from - series.length - slack, span.to + slack)) {
    const WallSeconds start = zone.toMachine(original);
    mailbox.store.prepare("INSERT INTO temp.occurrences(series, original, startTime, endTime) VALUES(?, ?, ?, ?)")
        .bind(series.id)
        .bind(original)
        .bind(start)
        .bind(start + series.length)
        .run();
  }
}

void expand(Mailbox& mailbox, const ItemQuery& query) {
  const Span span = spanOf(query, mailbox.clock);
  mailbox.store.prepare("DELETE FROM temp.occurrences").run();
  StoreStatement rows = mailbox.store.prepare(
      "SELECT i.id, i.recurrence, i.zone, i.seriesStart, i.endTime - i.startTime, i.allDay FROM items i "
      "WHERE i.folder = ? AND i.recurrence <> '' AND i.seriesEnd >= ? AND (i.weekdays & ?) <> 0 "
      "AND (i.monthDays & ?) <> 0 AND i.startTime <= ?");
  rows.bind(query.folder).bind(span.from).bind(weekdaysIn(span)).bind(monthDaysIn(span)).bind(span.to + zoneSlack);
  while (rows.step()) {
    SeriesRow series{rows.number(0), rows.text(1), {}, rows.number(3), rows.number(4), rows.flag(5)};
    if (!rows.isNull(2)) series.zone = rows.number(2);
    addOccurrences(mailbox, series, span);
  }
}

// The columns of an occurrence: its series', but for what is its own. What `itemColumns` and filters name is all here.
constexpr std::string_view occurrenceRows =
    "SELECT s.id, s.folder, s.kind, s.subject, s.body, s.importance, s.sensitivity, s.status, s.complete, "
    "s.percentComplete, s.dateCompleted, s.dueDate, s.totalWork, s.actualWork, o.startTime, o.endTime, s.location, "
    "s.allDay, s.reminderSet, s.id AS series, o.original, '' AS recurrence, NULL AS zone, 0 AS seriesStart, "
    "0 AS seriesEnd, 0 AS weekdays, 0 AS monthDays, s.uid, s.created, s.modified "
    "FROM temp.occurrences o CROSS JOIN items s ON s.id = o.series "
    "WHERE NOT EXISTS (SELECT 1 FROM deletedOccurrences d WHERE d.series = o.series AND d.original = o.original) "
    "AND NOT EXISTS (SELECT 1 FROM items x WHERE x.series = o.series AND x.original = o.original)";

// The items that are no series. A calendar holds appointments (kind 1) alone; saying so lets the indexes by time serve
// it.
std::string singlesOf(const ItemQuery& query) {
  return std::string("i.folder = ? AND i.recurrence = ''") +
         (query.folder == schema::calendar ? " AND i.kind = 1" : "");
}

// Single items of a span start no earlier than the longest of them lasts: with that the index by start bounds both
// sides of the search.
void boundSingles(Store& store, const ItemQuery& query, std::string& sql, std::vector<SqlValue>& values) {
  if (query.span.to) {
    sql += " AND i.startTime <= ?";
    values.emplace_back(*query.span.to);
  }
  if (!query.span.from) return;
  StoreStatement longest = store.prepare("SELECT i.endTime - i.startTime FROM items i WHERE " + singlesOf(query) +
                                         " ORDER BY i.endTime - i.startTime DESC LIMIT 1");
  const WallSeconds length = longest.bind(query.folder).step() ? longest.number(0) : 0;
  sql += " AND i.startTime >= ?";
  values.emplace_back(*query.span.from - length);
}

std::string_view sortKey(const ItemQuery& query) { return query.sort.empty() ? "i.id" : std::string_view(query.sort); }

std::vector<ItemRecord> select(Mailbox& mailbox, const ItemQuery& query) {
  const std::string columns = "SELECT " + std::string(itemColumns) + ", " + std::string(sortKey(query)) + " AS sortKey";
  std::string sql = columns + " FROM items i WHERE " + singlesOf(query);
  std::vector<SqlValue> values{query.folder};
  boundSingles(mailbox.store, query, sql, values);
  sql += query.andCondition() + " UNION ALL " + columns + " FROM (" + std::string(occurrenceRows) + ") i WHERE 1" +
         query.andCondition() + " ORDER BY sortKey COLLATE NOCASE, 1, original";
  for (int part = 0; part < 2; ++part)
    values.insert(values.end(), query.condition.values.begin(), query.condition.values.end());

  StoreStatement rows = mailbox.store.prepare(sql);
  rows.bind(values);
  std::vector<ItemRecord> items;
  while (rows.step()) {
    ItemRecord item = readItem(rows);
    // An occurrence has no row of its own yet.
    if (item.series == item.id) item.id = 0;
    items.push_back(std::move(item));
  }
  return items;
}

}  // namespace

void indexSeries(ItemRecord& series, const Zone& zone) {
  const Recurrence recurrence(series.recurrence, series.seriesStart, series.allDay);
  const WallSeconds length = series.end - series.start;
  const auto last = recurrence.lastStart();
  series.seriesEnd = last ? zone.toMachine(*last) + length : endless;
  series.weekdays = recurrence.weekdays();
  series.monthDays = recurrence.monthDays();
  if (!zone.isMachine()) {
    series.weekdays |= nextWeekdays(series.weekdays) | previousWeekdays(series.weekdays);
    series.monthDays |= nextMonthDays(series.monthDays) | previousMonthDays(series.monthDays);
  }
  // An occurrence also touches the days that it lasts into.
  const std::int64_t furtherDays = length == 0 ? 0 : length / secondsPerDay + 1;
  for (std::int64_t day = 0; day < furtherDays && day < 31; ++day) {
    series.weekdays |= nextWeekdays(series.weekdays);
    series.monthDays |= nextMonthDays(series.monthDays);
  }
}

std::optional<ItemRecord> occurrenceAt(Mailbox& mailbox, const ItemRecord& series, WallSeconds original) {
  if (series.recurrence.empty() || isErasedOccurrence(mailbox.store, series.id, original)) return {};
  const Recurrence recurrence(series.recurrence, series.seriesStart, series.allDay);
  if (recurrence.starts(original, original).empty()) return {};
  ItemRecord occurrence = series;
  occurrence.id = 0;
  occurrence.series = series.id;
  occurrence.original = original;
  occurrence.start = mailbox.zones.at(series.zone).toMachine(original);
  occurrence.end = occurrence.start + series.end - series.start;
  occurrence.recurrence.clear();
  occurrence.zone.reset();
  occurrence.seriesStart = occurrence.seriesEnd = occurrence.weekdays = occurrence.monthDays = 0;
  return occurrence;
}

std::vector<ItemRecord> itemsWithOccurrences(Mailbox& mailbox, const ItemQuery& query) {
  mailbox.store.requireReach();
  std::vector<ItemRecord> items;
  mailbox.store.read([&] {
    mailbox.store
        .prepare(
            "CREATE TEMP TABLE IF NOT EXISTS occurrences(series INTEGER, original INTEGER, startTime INTEGER, "
            "endTime INTEGER)")
        .run();
    expand(mailbox, query);
    items = select(mailbox, query);
  });
  return items;
}

}  // namespace tarnel::mailbox
