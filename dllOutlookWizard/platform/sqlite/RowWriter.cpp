#include "RowWriter.h"

#include <sqlite3.h>

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

RowWriter::RowWriter(Database& database, const ado::Result& shape) : database_(database), shape_(shape) {
  std::string columns;
  for (const ado::Column& column : shape.columns) columns += (columns.empty() ? "" : ", ") + quotedName(column.origin);
  select_ = "SELECT " + columns + " FROM " + quotedName(shape.table) + " WHERE rowid = ?";
}

std::optional<ado::Row> RowWriter::read(const ado::Identity& identity) {
  auto row = readById(identity.rowId);
  for (std::size_t i = 0; row && i < identity.keys.size(); ++i)
    if ((*row)[shape_.keyColumns[i]] != identity.keys[i]) row.reset();
  return row;
}

ado::Written RowWriter::write(const ado::Change& change) {
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

std::optional<ado::Row> RowWriter::readById(ado::RowId rowId) {
  Statement select(database_, select_, Statement::Use::again);
  select.bind(1, rowId);
  if (!select.step()) return {};
  ado::Row row;
  row.reserve(shape_.columns.size());
  for (std::size_t i = 0; i < shape_.columns.size(); ++i) row.push_back(valueOf(select, i));
  return row;
}

Variant RowWriter::valueOf(const Statement& row, std::size_t column) const {
  return readValue(row.handle(), static_cast<int>(column), shape_.columns[column].type);
}

bool RowWriter::isUnchanged(const ado::Change& change) {
  Statement select(database_, select_, Statement::Use::again);
  select.bind(1, change.identity.rowId);
  if (!select.step()) return false;
  const auto hold = [&](const std::vector<std::size_t>& columns, const std::vector<Variant>& values) {
    for (std::size_t i = 0; i < values.size(); ++i)
      if (valueOf(select, columns[i]) != values[i]) return false;
    return true;
  };
  return hold(shape_.keyColumns, change.identity.keys) && hold(change.columns, change.original);
}

void RowWriter::update(const ado::Change& change) {
  std::string sets;
  for (const std::size_t column : change.columns)
    sets += (sets.empty() ? "" : ", ") + quotedName(shape_.columns[column].origin) + " = ?";
  runWith(change, "UPDATE " + quotedName(shape_.table) + " SET " + sets + " WHERE rowid = ?");
}

ado::RowId RowWriter::insert(const ado::Change& change) {
  std::string columns, values;
  for (const std::size_t column : change.columns) {
    columns += (columns.empty() ? "" : ", ") + quotedName(shape_.columns[column].origin);
    values += values.empty() ? "?" : ", ?";
  }
  const std::string list = change.columns.empty() ? " DEFAULT VALUES" : " (" + columns + ") VALUES (" + values + ")";
  runWith(change, "INSERT INTO " + quotedName(shape_.table) + list);
  return sqlite3_last_insert_rowid(database_.handle());
}

void RowWriter::runWith(const ado::Change& change, const std::string& sql) {
  Statement statement(database_, sql, Statement::Use::again);
  int parameter = 0;
  for (const Variant& value : change.values) statement.bind(++parameter, value);
  if (change.kind == ado::Change::Kind::update) statement.bind(++parameter, change.identity.rowId);
  statement.step();
}

}  // namespace tarnel::sqlite
