#include "ItemRows.h"

#include <type_traits>

#include "ItemColumns.h"

namespace tarnel::mailbox {
namespace {

void bindField(Statement& statement, std::int64_t field) { statement.bind(field); }
void bindField(Statement& statement, const std::string& field) { statement.bind(field); }
void bindField(Statement& statement, const std::optional<std::int64_t>& field) {
  if (field)
    statement.bind(*field);
  else
    statement.bindNull();
}
void bindField(Statement& statement, const std::optional<std::string>& field) {
  statement.bind(field ? std::string_view(*field) : std::string_view());
}
template <class Enum>
requires std::is_enum_v<Enum>
void bindField(Statement& statement, Enum field) { statement.bind(static_cast<std::int64_t>(field)); }

template <class Value>
bool isChanged(const Value& before, const Value& now) {
  return now != before;
}
// A long text that wasn't read wasn't changed either.
bool isChanged(const std::optional<std::string>& before, const std::optional<std::string>& now) {
  return now && now != before;
}

// A uid that no other calendar has, for items that came from none.
std::string newUid(Store& store) {
  Statement random = store.prepare("SELECT lower(hex(randomblob(16)))");
  random.step();
  return random.text(0) + "@tarnel";
}

const std::string& insertStatement() {
  static const std::string sql = [] {
    std::string names, values;
    forEachColumn([&](const auto& column) {
      names.append(names.empty() ? "" : ", ").append(column.name);
      values.append(values.empty() ? "?" : ", ?");
    });
    return "INSERT INTO items(" + names + ") VALUES(" + values + ")";
  }();
  return sql;
}

const std::string& longTextsStatement() {
  static const std::string sql = [] {
    std::string names;
    forEachLongText([&](const auto& text) { names.append(names.empty() ? "" : ", ").append(text.name); });
    return "SELECT " + names + " FROM items WHERE id = ?";
  }();
  return sql;
}

bool hasLongTexts(const ItemRecord& item) {
  bool has = true;
  forEachLongText([&](const auto& text) { has = has && item.*text.field; });
  return has;
}

bool changedARow(const Store& store) { return store.changedRows() > 0; }

std::optional<ItemRecord> firstItem(Statement rows) {
  if (!rows.step()) return {};
  return readItem(rows);
}

}  // namespace

bool isStored(Store& store, std::int64_t id) {
  return store.prepare("SELECT 1 FROM items WHERE id = ?").bind(id).step();
}

std::optional<ItemRecord> findItem(Store& store, std::int64_t id) {
  static const std::string sql = "SELECT " + itemSelection() + " FROM items i WHERE i.id = ?";
  Statement rows = store.prepare(sql);
  rows.bind(id);
  return firstItem(std::move(rows));
}

std::optional<ItemRecord> findException(Store& store, std::int64_t series, WallSeconds original) {
  Statement rows = store.prepare("SELECT " + itemSelection() + " FROM items i WHERE i.series = ? AND i.original = ?");
  rows.bind(series).bind(original);
  return firstItem(std::move(rows));
}

void readTexts(Store& store, ItemRecord& item) {
  if (hasLongTexts(item)) return;
  Statement texts = store.prepare(longTextsStatement());
  texts.bind(item.id);
  const bool found = texts.step();
  int at = 0;
  forEachLongText([&](const auto& text) {
    auto& field = item.*text.field;
    if (!field) field = found ? texts.text(at) : std::string();
    ++at;
  });
}

void insertItem(Store& store, ItemRecord& item) {
  if (item.uid.empty()) item.uid = newUid(store);
  Statement insert = store.prepare(insertStatement());
  forEachColumn([&](const auto& column) { bindField(insert, item.*column.field); });
  insert.run();
  item.id = store.lastInsertId();
}

bool updateItem(Store& store, const ItemRecord& before, const ItemRecord& item) {
  const auto forEachChange = [&](const auto& visit) {
    forEachColumn([&](const auto& column) {
      if (isChanged(before.*column.field, item.*column.field)) visit(column);
    });
  };
  std::string assignments;
  forEachChange([&](const auto& column) {
    assignments.append(assignments.empty() ? "" : ", ").append(column.name).append(" = ?");
  });
  // Where only a property was set this still finds out whether the item is there.
  const bool isUnchanged = assignments.empty();
  if (isUnchanged) assignments = "modified = ?";
  Statement update = store.prepare("UPDATE items SET " + assignments + " WHERE id = ?");
  if (isUnchanged) update.bind(item.modified);
  forEachChange([&](const auto& column) { bindField(update, item.*column.field); });
  update.bind(item.id).run();
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
  Statement rows = store.prepare("SELECT 1 FROM deletedOccurrences WHERE series = ? AND original = ?");
  return rows.bind(series).bind(original).step();
}

EntryId entryIdOf(const Store& store, const ItemRecord& item) {
  if (item.series) return {store.id(), *item.series, item.original};
  return {store.id(), item.id, {}};
}

}  // namespace tarnel::mailbox
