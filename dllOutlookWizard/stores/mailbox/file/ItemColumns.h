#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "ItemRecord.h"
#include "Statement.h"

namespace tarnel::mailbox {

// A column of the table `items` and the field of a record that it holds.
template <class Value>
struct ItemColumn {
  Value ItemRecord::*field;
  const char* name;
  const char* declaration;  // its type in SQL, and its constraints
};
template <class Value>
ItemColumn(Value ItemRecord::*, const char*, const char*) -> ItemColumn<Value>;

namespace declared {
inline constexpr const char* number = "INTEGER NOT NULL";
inline constexpr const char* text = "TEXT NOT NULL";
}  // namespace declared

// All columns of `items` in the table's order, after its key `id`; only `complete` comes after them, which the engine
// works out. The layout of a new mailbox, reading, inserting and updating follow from this list. A change of it is a
// new schema::version, with a migration of the files that have the old one.
//
// `original` is the moment, in the series' zone, at which an exception replaces the series' own occurrence. `seriesEnd`
// is where the last occurrence ends (local wall seconds), `weekdays` and `monthDays` are masks of the days that an
// occurrence can touch, so that a day's series are found without expanding the others. `extras` keeps the lines of an
// imported component that no other column has.
inline constexpr std::tuple itemColumns{
    ItemColumn{&ItemRecord::folder, "folder", "INTEGER NOT NULL REFERENCES folders(id)"},
    ItemColumn{&ItemRecord::kind, "kind", declared::number},
    ItemColumn{&ItemRecord::subject, "subject", declared::text},
    ItemColumn{&ItemRecord::body, "body", declared::text},
    ItemColumn{&ItemRecord::importance, "importance", declared::number},
    ItemColumn{&ItemRecord::sensitivity, "sensitivity", declared::number},
    ItemColumn{&ItemRecord::status, "status", declared::number},
    ItemColumn{&ItemRecord::percentComplete, "percentComplete", declared::number},
    ItemColumn{&ItemRecord::dateCompleted, "dateCompleted", declared::number},
    ItemColumn{&ItemRecord::dueDate, "dueDate", declared::number},
    ItemColumn{&ItemRecord::totalWork, "totalWork", declared::number},
    ItemColumn{&ItemRecord::actualWork, "actualWork", declared::number},
    ItemColumn{&ItemRecord::start, "startTime", declared::number},
    ItemColumn{&ItemRecord::end, "endTime", declared::number},
    ItemColumn{&ItemRecord::location, "location", declared::text},
    ItemColumn{&ItemRecord::allDay, "allDay", declared::number},
    ItemColumn{&ItemRecord::reminderSet, "reminderSet", declared::number},
    ItemColumn{&ItemRecord::series, "series", "INTEGER REFERENCES items(id) ON DELETE CASCADE"},
    ItemColumn{&ItemRecord::original, "original", "INTEGER"},
    ItemColumn{&ItemRecord::recurrence, "recurrence", declared::text},
    ItemColumn{&ItemRecord::zone, "zone", "INTEGER REFERENCES zones(id)"},
    ItemColumn{&ItemRecord::seriesStart, "seriesStart", declared::number},
    ItemColumn{&ItemRecord::seriesEnd, "seriesEnd", declared::number},
    ItemColumn{&ItemRecord::weekdays, "weekdays", declared::number},
    ItemColumn{&ItemRecord::monthDays, "monthDays", declared::number},
    ItemColumn{&ItemRecord::uid, "uid", declared::text},
    ItemColumn{&ItemRecord::created, "created", declared::number},
    ItemColumn{&ItemRecord::modified, "modified", declared::number},
    ItemColumn{&ItemRecord::extras, "extras", declared::text},
};

// Calls `visit` with each column.
template <class Visit>
constexpr void forEachColumn(Visit&& visit) {
  std::apply([&](const auto&... column) { (visit(column), ...); }, itemColumns);
}

// Optional texts are the long ones, which are read only when somebody asks for them.
template <class Value>
inline constexpr bool isLongText = std::is_same_v<Value, std::optional<std::string>>;

template <class Visit>
constexpr void forEachLongText(Visit&& visit) {
  forEachColumn([&]<class Value>(const ItemColumn<Value>& column) {
    if constexpr (isLongText<Value>) visit(column);
  });
}

template <class Visit>
constexpr void forEachShortColumn(Visit&& visit) {
  forEachColumn([&]<class Value>(const ItemColumn<Value>& column) {
    if constexpr (!isLongText<Value>) visit(column);
  });
}

// The columns for CREATE TABLE, one a line, each with a comma at its end.
std::string itemColumnDefinitions();

// The select list that readItem reads, for a table named `i`: its key and all columns but the long texts.
const std::string& itemSelection();
// The same with another expression for each column, which is asked for by the column's name.
std::string itemSelection(const std::function<std::string(std::string_view column)>& expression);
// How many columns that is.
inline constexpr int itemSelectionSize = [] {
  int size = 1;
  forEachShortColumn([&](const auto&) { ++size; });
  return size;
}();
ItemRecord readItem(const sqlite::Statement& row);

}  // namespace tarnel::mailbox
