#include "Occurrences.h"

#include <algorithm>
#include <array>
#include <utility>

#include "ItemColumns.h"
#include "Recurrence.h"
#include "SeriesIndex.h"

namespace tarnel::mailbox {
namespace {

constexpr WallSeconds openSide = 366 * secondsPerDay;
// Wall times of two zones lie at most 26 hours apart.
constexpr WallSeconds zoneSlack = WallSeconds{26} * 3600;

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
  Statement rows = mailbox.store.prepare(
      "SELECT i.id, i.recurrence, i.zone, i.seriesStart, i.endTime - i.startTime, i.allDay FROM items i "
      "WHERE i.folder = ? AND i.recurrence <> '' AND i.seriesEnd >= ? AND (i.weekdays & ?) <> 0 "
      "AND (i.monthDays & ?) <> 0 AND i.startTime <= ?");
  rows.bind(query.folder)
      .bind(span.from)
      .bind(weekdaysBetween(span.from, span.to))
      .bind(monthDaysBetween(span.from, span.to))
      .bind(span.to + zoneSlack);
  while (rows.step()) {
    SeriesRow series{rows.number(0), rows.text(1), {}, rows.number(3), rows.number(4), rows.flag(5)};
    if (!rows.isNull(2)) series.zone = rows.number(2);
    addOccurrences(mailbox, series, span);
  }
}

// A column of an occurrence: its series', but for what is its own.
std::string occurrenceColumn(std::string_view column) {
  static constexpr std::array<std::pair<std::string_view, std::string_view>, 10> own{{{"startTime", "o.startTime"},
                                                                                      {"endTime", "o.endTime"},
                                                                                      {"series", "s.id"},
                                                                                      {"original", "o.original"},
                                                                                      {"recurrence", "''"},
                                                                                      {"zone", "NULL"},
                                                                                      {"seriesStart", "0"},
                                                                                      {"seriesEnd", "0"},
                                                                                      {"weekdays", "0"},
                                                                                      {"monthDays", "0"}}};
  const auto found = std::ranges::find(own, column, &std::pair<std::string_view, std::string_view>::first);
  const std::string expression = found == own.end() ? "s." + std::string(column) : std::string(found->second);
  return expression + " AS " + std::string(column);
}

// The rows of occurrences, with all that readItem and filters ask of a row.
const std::string& occurrenceRows() {
  static const std::string sql =
      "SELECT s.body, s.complete, " + itemSelection(occurrenceColumn) +
      " FROM temp.occurrences o CROSS JOIN items s ON s.id = o.series "
      "WHERE NOT EXISTS (SELECT 1 FROM deletedOccurrences d WHERE d.series = o.series AND d.original = o.original) "
      "AND NOT EXISTS (SELECT 1 FROM items x WHERE x.series = o.series AND x.original = o.original)";
  return sql;
}

// The items that are no series. A calendar holds appointments (kind 1) alone; saying so lets the indexes by time serve
// it.
std::string singlesOf(const ItemQuery& query) {
  return std::string("i.folder = ? AND i.recurrence = ''") +
         (query.folder == folderId::calendar ? " AND i.kind = 1" : "");
}

// Single items of a span start no earlier than the longest of them lasts: with that the index by start bounds both
// sides of the search.
void boundSingles(Store& store, const ItemQuery& query, std::string& sql, std::vector<SqlValue>& values) {
  if (query.span.to) {
    sql += " AND i.startTime <= ?";
    values.emplace_back(*query.span.to);
  }
  if (!query.span.from) return;
  Statement longest = store.prepare("SELECT i.endTime - i.startTime FROM items i WHERE " + singlesOf(query) +
                                    " ORDER BY i.endTime - i.startTime DESC LIMIT 1");
  const WallSeconds length = longest.bind(query.folder).step() ? longest.number(0) : 0;
  sql += " AND i.startTime >= ?";
  values.emplace_back(*query.span.from - length);
}

std::string_view sortKey(const ItemQuery& query) { return query.sort.empty() ? "i.id" : std::string_view(query.sort); }

std::vector<ItemRecord> select(Mailbox& mailbox, const ItemQuery& query) {
  const std::string columns = "SELECT " + itemSelection() + ", " + std::string(sortKey(query)) + " AS sortKey";
  std::string sql = columns + " FROM items i WHERE " + singlesOf(query);
  std::vector<SqlValue> values{query.folder};
  boundSingles(mailbox.store, query, sql, values);
  sql += query.andCondition() + " UNION ALL " + columns + " FROM (" + occurrenceRows() + ") i WHERE 1" +
         query.andCondition() + " ORDER BY sortKey COLLATE NOCASE, 1, original";
  for (int part = 0; part < 2; ++part)
    values.insert(values.end(), query.condition.values.begin(), query.condition.values.end());

  Statement rows = mailbox.store.prepare(sql);
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
