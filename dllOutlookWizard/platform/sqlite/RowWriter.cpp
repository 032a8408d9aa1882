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
    checkUnchanged(change);
    update(change);
  }
  auto row = readById(rowId);
  if (!row) failConflict(shape_);
  return {rowId, std::move(*row)};
}

std::optional<ado::Row> RowWriter::readById(ado::RowId rowId) {
  Statement& select = prepared(select_);
  select.bind(1, rowId);
  std::optional<ado::Row> row;
  if (select.step()) {
    row.emplace();
    for (std::size_t i = 0; i < shape_.columns.size(); ++i)
      row->push_back(readValue(select.handle(), static_cast<int>(i), shape_.columns[i].type));
  }
  select.reset();
  return row;
}

void RowWriter::checkUnchanged(const ado::Change& change) {
  const auto row = read(change.identity);
  if (!row) failConflict(shape_);
  for (std::size_t i = 0; i < change.columns.size(); ++i)
    if ((*row)[change.columns[i]] != change.original[i]) failConflict(shape_);
}

void RowWriter::update(const ado::Change& change) {
  std::string sets;
  for (const std::size_t column : change.columns)
    sets += (sets.empty() ? "" : ", ") + quotedName(shape_.columns[column].origin) + " = ?";
  Statement& statement = prepared("UPDATE " + quotedName(shape_.table) + " SET " + sets + " WHERE rowid = ?");
  int parameter = 0;
  for (const Variant& value : change.values) statement.bind(++parameter, value);
  statement.bind(++parameter, change.identity.rowId);
  statement.step();
  statement.reset();
}

ado::RowId RowWriter::insert(const ado::Change& change) {
  std::string columns, values;
  for (const std::size_t column : change.columns) {
    columns += (columns.empty() ? "" : ", ") + quotedName(shape_.columns[column].origin);
    values += values.empty() ? "?" : ", ?";
  }
  const std::string list = change.columns.empty() ? " DEFAULT VALUES" : " (" + columns + ") VALUES (" + values + ")";
  Statement& statement = prepared("INSERT INTO " + quotedName(shape_.table) + list);
  int parameter = 0;
  for (const Variant& value : change.values) statement.bind(++parameter, value);
  statement.step();
  statement.reset();
  return sqlite3_last_insert_rowid(database_.handle());
}

Statement& RowWriter::prepared(const std::string& sql) {
  const auto found = statements_.find(sql);
  if (found != statements_.end()) return found->second;
  return statements_.emplace(sql, Statement(database_.handle(), sql)).first->second;
}

}  // namespace tarnel::sqlite
