#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "Enums.h"
#include "Provider.h"

namespace tarnel::ado {

class Recordset;

// One column of the current row. Cheap to copy; valid while its recordset is open, and always means the current row.
class Field {
 public:
  const std::string& Name() const;
  // Valid until the cursor moves or the row changes. Failure 3021 when there is no current row.
  const Variant& Value() const;
  // Sets the value in the row's copy; the database has it after Update (optimistic or pessimistic) or UpdateBatch.
  // The value is kept as its column holds it, by the rules of Conversions.h, and other columns of the same origin
  // follow. Failure 3251 on a read-only recordset or result, 3021 without a current row, 13 or 6 for a value that
  // doesn't fit.
  void setValue(const Variant& value);

 private:
  friend class Recordset;
  Field(Recordset& owner, std::size_t column) : owner_(&owner), column_(column) {}
  Recordset* owner_;
  std::size_t column_;
};

// A client-side cursor: reads its rows once, when it opens, and walks its own copy. It keeps the original and the
// current values and which rows are pending, and writes those alone.
class Recordset {
 public:
  Recordset();
  ~Recordset();
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  // The properties before the open; failure 3705 on an open recordset.
  void setCursorLocation(CursorLocation location);
  void setCursorType(CursorType type);
  void setLockType(LockType type);
  CursorType cursorType() const;
  LockType lockType() const;

  // Runs the statement and moves to the first row, or to both ends when there is none. What is passed as unspecified
  // stays as the properties say. An empty connection string is failure 3709.
  void Open(Provider& provider, std::string statement, const std::string& connectionString,
            CursorType type = CursorType::unspecified, LockType lock = LockType::unspecified,
            CommandType command = CommandType::text);
  // Lets go of the connection: the rows stay, writing and requerying fail with 3709.
  void disconnect();
  // Drops what is pending. Failure 3704 when it is closed already.
  void Close();
  State state() const;

  // Where the cursor is. An empty recordset is at both ends.
  bool atBOF() const;
  bool atEOF() const;
  std::int32_t RecordCount() const;
  // 1 for the first row, -3 at EOF.
  std::int32_t AbsolutePosition() const;
  // Failure 3021 on an empty recordset.
  void MoveFirst();
  // Failure 3021 when it is past the last row already. Moving off a row ends its editing as Update does.
  void MoveNext();
  // Moves to the first row, from the first on, whose `column` equals `value`, case ignored but in keys; Null equals
  // nothing.
  // None: moves to EOF. Failure 3265 when there is no such column.
  void Find(std::string_view column, const Variant& value);

  // Columns are named without regard to case; of two with one name the first is meant. Failure 3265 when there is none.
  Field Fields(std::string_view name);
  Field Fields(std::size_t index);
  std::size_t fieldCount() const;

  // Appends a pending row and makes it the current one. What isn't set in it reads as Null until it was written, and as
  // the database's defaults afterwards. Failure 3251 as in setValue.
  void AddNew();
  // Ends the editing of the current row. Not batch-optimistic: writes it.
  void Update();
  // Writes all pending rows in one transaction and visits only those. On a failure they stay pending and nothing
  // is written.
  void UpdateBatch(Affect affect = Affect::all);
  // Drops what is pending: rows hold again what they held before, and new ones are gone. The cursor stays on its row,
  // or is at EOF where that one is gone.
  void CancelBatch();

  // Runs the statement again and moves to the first row; what was pending is dropped, filter and sort stay. `options`
  // is -1.
  void Requery(std::int32_t options = -1);
  // Reads the rows that are there again from the database, in their places. A row that has gone there keeps its values
  // and fails at its next write. What was set and not written is dropped with `all` and kept with `underlying`; new
  // rows stay pending. Failure 3251 where rows can't be told in the database.
  void Resync(Affect affect = Affect::all, ResyncValues values = ResyncValues::all);

  // "column [ASC|DESC][, ...]"; empty for the statement's own order. Moves to the first row. Like the
  // filter it is worked out here and at Requery: a value that is set later moves no row, and a new row is the last.
  void setSort(std::string_view columns);
  // "column operator value [AND ...]", texts in single quotes, dates between "#"; empty for none. Rows that do not
  // match are passed over by everything. Moves to the first row. Failure 3001 for a text that can't be
  // read.
  void setFilter(std::string_view criterion);

 private:
  friend class Field;
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace tarnel::ado
