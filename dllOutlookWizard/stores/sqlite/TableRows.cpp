#include "TableRows.h"

#include "ColumnTypes.h"
#include "Failure.h"

namespace tarnel::sqlite {
namespace {

std::string quotedName(const std::string& name) {
  std::string quoted = "\"";
  for (const char c : name) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + "\"";
}

[[noreturn]] void failConflict(const ado::Result& shape) {
  throw Failure(
      failure::writeConflict,
      "Row cannot be located for updating. Some values may have been changed since it was last read. (table " +
          shape.table + ")");
}

}  // namespace

TableRows::TableRows(Database& database, const ado::Result& shape) : database_(database), shape_(shape) {
  std::string columns;
  for (const ado::Column& column : shape.columns) columns += (columns.empty() ? "" : ", ") + quotedName(column.origin);
  select_ = "SELECT " + columns + " FROM " + quotedName(shape.table) + " WHERE rowid = ?";
}

std::optional<ado::Row> TableRows::read(const ado::Identity& identity) {
  auto row = readById(identity.rowId);
  for (std::size_t i = 0; row && i < identity.keys.size(); ++i)
    if ((*row)[shape_.keyColumns[i]] != identity.keys[i]) row.reset();
  return row;
}

ado::Written TableRows::write(const ado::Change& change) {
  ado::RowId rowId = change.identity.rowId;
  if (change.kind == ado::Change::Kind::insert) {
    rowId = insert(change);
  } else {
    if (!isUnchanged(change)) failConflict(shape_);
    update(change);
  }
  auto row = readById(rowId);
  if (!row) failConflict(shape_);
  return {rowId, std::move(*row)};
}

std::optional<ado::Row> TableRows::readById(ado::RowId rowId) {
  Statement select(database_, select_);
  select.bind(rowId);
  if (!select.step()) return {};
  ado::Row row;
  row.reserve(shape_.columns.size());
  for (std::size_t i = 0; i < shape_.columns.size(); ++i) row.push_back(valueOf(select, i));
  return row;
}

Variant TableRows::valueOf(const Statement& row, std::size_t column) const {
  return readValue(row, column, shape_.columns[column].type);
}

bool TableRows::isUnchanged(const ado::Change& change) {
  Statement select(database_, select_);
  select.bind(change.identity.rowId);
  if (!select.step()) return false;
  const auto hold = [&](const std::vector<std::size_t>& columns, const std::vector<Variant>& values) {
    for (std::size_t i = 0; i < values.size(); ++i)
      if (valueOf(select, columns[i]) != values[i]) return false;
    return true;
  };
  return hold(shape_.keyColumns, change.identity.keys) && hold(change.columns, change.original);
}

void TableRows::update(const ado::Change& change) {
  std::string sets;
  for (const std::size_t column : change.columns)
    sets += (sets.empty() ? "" : ", ") + quotedName(shape_.columns[column].origin) + " = ?";
  runWith(change, "UPDATE " + quotedName(shape_.table) + " SET " + sets + " WHERE rowid = ?");
}

ado::RowId TableRows::insert(const ado::Change& change) {
  std::string columns, values;
  for (const std::size_t column : change.columns) {
    columns += (columns.empty() ? "" : ", ") + quotedName(shape_.columns[column].origin);
    values += values.empty() ? "?" : ", ?";
  }
  const std::string list = change.columns.empty() ? " DEFAULT VALUES" : " (" + columns + ") VALUES (" + values + ")";
  runWith(change, "INSERT INTO " + quotedName(shape_.table) + list);
  return database_.lastInsertId();
}

void TableRows::runWith(const ado::Change& change, const std::string& sql) {
  Statement statement(database_, sql);
  for (const Variant& value : change.values) bindValue(statement, value);
  if (change.kind == ado::Change::Kind::update) statement.bind(change.identity.rowId);
  statement.run();
}

}  // namespace tarnel::sqlite
