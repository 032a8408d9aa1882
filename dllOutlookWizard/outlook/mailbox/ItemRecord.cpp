#include "ItemRecord.h"

#include <array>

namespace tarnel::mailbox {
namespace {

using Item = ItemRecord;

std::optional<std::int64_t> optionalNumber(const StoreStatement& row, int column) {
  if (row.isNull(column)) return {};
  return row.number(column);
}

SqlValue valueOf(const std::optional<std::int64_t>& number) { return number ? SqlValue(*number) : SqlValue(); }
SqlValue valueOf(bool flag) { return static_cast<std::int64_t>(flag); }
SqlValue valueOf(outlook::ItemType kind) { return static_cast<std::int64_t>(kind); }
SqlValue valueOf(outlook::TaskStatus status) { return static_cast<std::int64_t>(status); }

struct Column {
  const char* name;
  SqlValue (*value)(const Item&);
};

// Every column that is written, but for the long texts.
constexpr std::array columns = {
    Column{"folder", [](const Item& item) -> SqlValue { return item.folder; }},
    Column{"kind", [](const Item& item) { return valueOf(item.kind); }},
    Column{"subject", [](const Item& item) -> SqlValue { return item.subject; }},
    Column{"importance", [](const Item& item) -> SqlValue { return item.importance; }},
    Column{"sensitivity", [](const Item& item) -> SqlValue { return item.sensitivity; }},
    Column{"status", [](const Item& item) { return valueOf(item.status); }},
    Column{"percentComplete", [](const Item& item) -> SqlValue { return item.percentComplete; }},
    Column{"dateCompleted", [](const Item& item) -> SqlValue { return item.dateCompleted; }},
    Column{"dueDate", [](const Item& item) -> SqlValue { return item.dueDate; }},
    Column{"totalWork", [](const Item& item) -> SqlValue { return item.totalWork; }},
    Column{"actualWork", [](const Item& item) -> SqlValue { return item.actualWork; }},
    Column{"startTime", [](const Item& item) -> SqlValue { return item.start; }},
    Column{"endTime", [](const Item& item) -> SqlValue { return item.end; }},
    Column{"location", [](const Item& item) -> SqlValue { return item.location; }},
    Column{"allDay", [](const Item& item) { return valueOf(item.allDay); }},
    Column{"reminderSet", [](const Item& item) { return valueOf(item.reminderSet); }},
    Column{"series", [](const Item& item) { return valueOf(item.series); }},
    Column{"original", [](const Item& item) { return valueOf(item.original); }},
    Column{"recurrence", [](const Item& item) -> SqlValue { return item.recurrence; }},
    Column{"zone", [](const Item& item) { return valueOf(item.zone); }},
    Column{"seriesStart", [](const Item& item) -> SqlValue { return item.seriesStart; }},
    Column{"seriesEnd", [](const Item& item) -> SqlValue { return item.seriesEnd; }},
    Column{"weekdays", [](const Item& item) -> SqlValue { return item.weekdays; }},
    Column{"monthDays", [](const Item& item) -> SqlValue { return item.monthDays; }},
    Column{"uid", [](const Item& item) -> SqlValue { return item.uid; }},
    Column{"created", [](const Item& item) -> SqlValue { return item.created; }},
    Column{"modified", [](const Item& item) -> SqlValue { return item.modified; }},
};

// A uid that no other calendar has, for items that came from none.
std::string newUid(Store& store) {
  StoreStatement random = store.prepare("SELECT lower(hex(randomblob(16)))");
  random.step();
  return random.text(0) + "@tarnel";
}

const std::string& insertStatement() {
  static const std::string sql = [] {
    std::string names, values;
    for (const Column& column : columns) {
      names += std::string(column.name) + ", ";
      values += "?, ";
    }
    return "INSERT INTO items(" + names + "body, extras) VALUES(" + values + "?, ?)";
  }();
  return sql;
}

bool changedARow(const Store& store) { return store.changedRows() > 0; }

std::optional<ItemRecord> firstItem(StoreStatement rows) {
  if (!rows.step()) return {};
  return readItem(rows);
}

}  // namespace

const std::string_view itemColumns =
    "i.id, i.folder, i.kind, i.subject, i.importance, i.sensitivity, i.status, i.percentComplete, i.dateCompleted, "
    "i.dueDate, i.totalWork, i.actualWork, i.startTime, i.endTime, i.location, i.allDay, i.reminderSet, i.series, "
    "i.original, i.recurrence, i.zone, i.seriesStart, i.seriesEnd, i.weekdays, i.monthDays, i.uid, i.created, "
    "i.modified";

ItemRecord readItem(const StoreStatement& row) {
  ItemRecord item;
  int column = 0;
  item.id = row.number(column++);
  item.folder = row.number(column++);
  item.kind = static_cast<outlook::ItemType>(row.number(column++));
  item.subject = row.text(column++);
  item.importance = row.number(column++);
  item.sensitivity = row.number(column++);
  item.status = static_cast<outlook::TaskStatus>(row.number(column++));
  item.percentComplete = row.number(column++);
  item.dateCompleted = row.number(column++);
  item.dueDate = row.number(column++);
  item.totalWork = row.number(column++);
  item.actualWork = row.number(column++);
  item.start = row.number(column++);
  item.end = row.number(column++);
  item.location = row.text(column++);
  item.allDay = row.flag(column++);
  item.reminderSet = row.flag(column++);
  item.series = optionalNumber(row, column++);
  item.original = optionalNumber(row, column++);
  item.recurrence = row.text(column++);
  item.zone = optionalNumber(row, column++);
  item.seriesStart = row.number(column++);
  item.seriesEnd = row.number(column++);
  item.weekdays = row.number(column++);
  item.monthDays = row.number(column++);
  item.uid = row.text(column++);
  item.created = row.number(column++);
  item.modified = row.number(column++);
  return item;
}

bool isStored(Store& store, std::int64_t id) {
  return store.prepare("SELECT 1 FROM items WHERE id = ?").bind(id).step();
}

std::optional<ItemRecord> findItem(Store& store, std::int64_t id) {
  static const std::string sql = "SELECT " + std::string(itemColumns) + " FROM items i WHERE i.id = ?";
  StoreStatement rows = store.prepare(sql);
  rows.bind(id);
  return firstItem(std::move(rows));
}

std::optional<ItemRecord> findException(Store& store, std::int64_t series, WallSeconds original) {
  StoreStatement rows =
      store.prepare("SELECT " + std::string(itemColumns) + " FROM items i WHERE i.series = ? AND i.original = ?");
  rows.bind(series).bind(original);
  return firstItem(std::move(rows));
}

void readTexts(Store& store, ItemRecord& item) {
  if (item.body && item.extras) return;
  StoreStatement texts = store.prepare("SELECT body, extras FROM items WHERE id = ?");
  texts.bind(item.id);
  const bool found = texts.step();
  if (!item.body) item.body = found ? texts.text(0) : std::string();
  if (!item.extras) item.extras = found ? texts.text(1) : std::string();
}

void insertItem(Store& store, ItemRecord& item) {
  if (item.uid.empty()) item.uid = newUid(store);
  StoreStatement insert = store.prepare(insertStatement());
  for (const Column& column : columns) insert.bind(column.value(item));
  insert.bind(std::string_view(item.body ? *item.body : std::string()));
  insert.bind(std::string_view(item.extras ? *item.extras : std::string()));
  insert.run();
  item.id = store.lastInsertId();
}

bool updateItem(Store& store, const ItemRecord& before, const ItemRecord& item) {
  std::string assignments;
  std::vector<SqlValue> values;
  const auto assign = [&](const char* name, SqlValue value) {
    assignments += (assignments.empty() ? "" : ", ") + std::string(name) + " = ?";
    values.push_back(std::move(value));
  };
  for (const Column& column : columns)
    if (SqlValue value = column.value(item); value != column.value(before)) assign(column.name, std::move(value));
  if (item.body && item.body != before.body) assign("body", *item.body);
  if (item.extras && item.extras != before.extras) assign("extras", *item.extras);
  // Where only a property was set this still finds out whether the item is there.
  if (values.empty()) assign("modified", item.modified);
  store.prepare("UPDATE items SET " + assignments + " WHERE id = ?").bind(values).bind(item.id).run();
  return changedARow(store);
}

bool moveItemRow(Store& store, std::int64_t id, std::int64_t folder) {
  store.prepare("UPDATE items SET folder = ? WHERE id = ?").bind(folder).bind(id).run();
  const bool moved = changedARow(store);
  store.prepare("UPDATE items SET folder = ? WHERE series = ?").bind(folder).bind(id).run();
  return moved;
}

bool eraseItemRow(Store& store, std::int64_t id) {
  store.prepare("DELETE FROM items WHERE id = ?").bind(id).run();
  return changedARow(store);
}

void eraseOccurrence(Store& store, std::int64_t series, WallSeconds original) {
  store.prepare("INSERT OR IGNORE INTO deletedOccurrences(series, original) VALUES(?, ?)")
      .bind(series)
      .bind(original)
      .run();
  store.prepare("DELETE FROM items WHERE series = ? AND original = ?").bind(series).bind(original).run();
}

bool isErasedOccurrence(Store& store, std::int64_t series, WallSeconds original) {
  StoreStatement rows = store.prepare("SELECT 1 FROM deletedOccurrences WHERE series = ? AND original = ?");
  return rows.bind(series).bind(original).step();
}

EntryId entryIdOf(const Store& store, const ItemRecord& item) {
  if (item.series) return {store.id(), *item.series, item.original};
  return {store.id(), item.id, {}};
}

}  // namespace tarnel::mailbox
