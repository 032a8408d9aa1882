#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "PackedRows.h"
#include "Variant.h"

namespace tarnel::ado {

// The seam to a database engine: what the cursor engine asks of one. Statements are written in Jet's SQL; a
// provider turns them into its own. All failures are Failures with the engine's text.

// A column of a result and where it comes from; the origin is empty where the column is computed. A column without a
// declared type is `any` and holds values as they come.
struct Column {
  enum class Type { any, text, integer, real, boolean, dateTime, bytes };

  std::string name;
  std::string table;
  std::string origin;
  Type type = Type::any;
};

// The engine's own identity of a row of a table, stable while the row lives.
using RowId = std::int64_t;

// What a SELECT gave: texts as std::string, integers as std::int32_t (double beyond 32 bits), BOOLEAN as bool, DATETIME
// as Date, absent values as Null.
struct Result {
  std::vector<Column> columns;
  // The one table that rows are written back to; empty when the result is read-only, because it names several tables
  // or none, computes a column or joins rows into one.
  std::string table;
  std::vector<std::size_t> keyColumns;  // those of `columns` that are part of the table's primary key
  std::vector<RowId> rowIds;            // one a row where there is such a table
  PackedRows rows;
};

// Where a row lies. An engine may give the id of a removed row to a new one; the values of the key columns, as they
// were read, tell the two apart.
struct Identity {
  RowId rowId = 0;
  std::vector<Variant> keys;  // by Result::keyColumns
};

// One row's pending change. `values` has the columns that were set; `original` holds what the same columns held
// when they were read.
struct Change {
  enum class Kind { insert, update };

  Kind kind = Kind::update;
  Identity identity;  // of an update
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
  // Reads these rows of the result's table again, in their order; none for a row that is gone.
  virtual std::vector<std::optional<Row>> reread(const Result& shape, const std::vector<Identity>& rows) = 0;
};

class Provider {
 public:
  virtual ~Provider() = default;
  // Opens what the connection string names and never creates it. Sessions on one string may share what lies below.
  virtual std::shared_ptr<Session> open(std::string_view connectionString) = 0;
  // A command is over: what its sessions hold open may be let go of until their next use. Never fails.
  virtual void rest() noexcept {}
};

// Opens through the provider; an empty connection string is failure 3709.
std::shared_ptr<Session> connect(Provider& provider, std::string_view connectionString);
// That failure.
[[noreturn]] void failNotConnected();

}  // namespace tarnel::ado
