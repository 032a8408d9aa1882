#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Variant.h"

namespace tarnel::ado {

// The seam to a database engine: what the cursor engine asks of one. Statements are written in Jet's SQL; a
// provider turns them into its own. All failures are Failures with the engine's text.

// A column of a result and where it comes from; the origin is empty where the column is computed.
struct Column {
  enum class Type { text, integer, real, boolean, dateTime, bytes };

  std::string name;
  std::string table;
  std::string origin;
  Type type = Type::text;
};

// The engine's own identity of a row of a table, stable while the row lives.
using RowId = std::int64_t;

using Row = std::vector<Variant>;

struct Result {
  std::vector<Column> columns;
  std::string table;          // the one table that rows are written back to; empty when the result is read-only
  std::vector<RowId> rowIds;  // one a row where there is such a table
  std::vector<Row> rows;
};

// One row's pending change. A column stands in `values` when it was set; `original` holds what the same columns held
// when they were read.
struct Change {
  enum class Kind { insert, update };

  Kind kind = Kind::update;
  RowId rowId = 0;
  std::vector<std::size_t> columns;
  std::vector<Variant> values;
  std::vector<Variant> original;
};

// What a written row looks like now, defaults filled in.
struct Written {
  RowId rowId = 0;
  Row row;
};

class Session {
 public:
  virtual ~Session() = default;

  // Runs one SELECT and reads all its rows.
  virtual Result query(std::string_view statement) = 0;
  // Runs one statement that returns no rows; the number of rows that it touched.
  virtual std::int32_t execute(std::string_view statement) = 0;
  // Writes all changes to the result's table in one transaction, all or none. A row that another one has changed in a
  // column that is written, or removed, since it was read: failure::writeConflict.
  virtual std::vector<Written> write(const Result& shape, const std::vector<Change>& changes) = 0;
};

class Provider {
 public:
  virtual ~Provider() = default;
  // Opens what the connection string names and never creates it. Sessions on one string may share what lies below.
  virtual std::shared_ptr<Session> open(std::string_view connectionString) = 0;
};

}  // namespace tarnel::ado
