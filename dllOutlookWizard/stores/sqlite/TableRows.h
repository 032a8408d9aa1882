#pragma once

#include <optional>
#include <string>

#include "Database.h"
#include "Provider.h"
#include "Statement.h"

namespace tarnel::sqlite {

// Reads and writes single rows of a result's table by their identity. Lives no longer than one call of a session.
class TableRows {
 public:
  TableRows(Database& database, const ado::Result& shape);

  // None when the row is gone, or its id belongs to another one now.
  std::optional<ado::Row> read(const ado::Identity& identity);
  // Within a transaction of the caller's. Failure writeConflict for a row that was changed or removed elsewhere.
  ado::Written write(const ado::Change& change);

 private:
  std::optional<ado::Row> readById(ado::RowId rowId);
  // Whether the row is there and holds what was read of it, as far as the change goes.
  bool isUnchanged(const ado::Change& change);
  void update(const ado::Change& change);
  ado::RowId insert(const ado::Change& change);
  // Runs a statement that takes the change's values, and after them an update's row.
  void runWith(const ado::Change& change, const std::string& sql);
  Variant valueOf(const Statement& row, std::size_t column) const;

  Database& database_;
  const ado::Result& shape_;
  std::string select_;
};

}  // namespace tarnel::sqlite
