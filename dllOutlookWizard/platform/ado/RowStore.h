#pragma once

#include <map>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "KeyIndex.h"
#include "Provider.h"

namespace tarnel::ado {

// Failure 3265: there is no such column.
[[noreturn]] void failNoSuchItem(std::string_view nameOrOrdinal);

// The rows of a recordset in the order of their reading: current values, the originals of what was set, and which rows
// are pending. Columns and rows are numbered from 0.
class RowStore {
 public:
  RowStore() = default;
  explicit RowStore(Result result);

  // Columns and origin of the rows.
  const Result& result() const { return result_; }
  const Column& column(std::size_t index) const { return result_.columns[index]; }
  std::size_t columnCount() const { return result_.columns.size(); }
  // The first column of that name, case ignored. Failure 3265 when there is none.
  std::size_t columnNamed(std::string_view name) const;
  std::size_t rowCount() const { return result_.rows.size() + appended_; }
  // Valid until the value of another row is asked for.
  const Variant& shownValue(std::size_t row, std::size_t column) const;
  Variant value(std::size_t row, std::size_t column) const;

  // Sets a value as its column holds it and makes the row pending. Columns of one origin change together.
  void set(std::size_t row, std::size_t column, const Variant& value);
  // A new pending row after the others, all Null; its number.
  std::size_t append();

  // Rows whose `column` equals `value`, case ignored but in keys, in no order. The first question about a column builds
  // its index.
  std::vector<std::size_t> rowsEqual(std::size_t column, const Variant& value);

  bool isPending(std::size_t row) const { return pending_.contains(row); }
  std::vector<std::size_t> pendingRows() const;
  std::vector<Change> changesOf(const std::vector<std::size_t>& rows) const;
  // The changes of these rows are in the database now.
  void settle(const std::vector<std::size_t>& rows, const std::vector<Written>& written);

  // Takes all pending values back; pending new rows, which are the last ones, go.
  void cancel();

  // Rows that the database knows, and their identities.
  std::vector<std::size_t> storedRows() const;
  std::vector<Identity> identitiesOf(const std::vector<std::size_t>& rows) const;
  // Takes over what the database holds now. What was set and is pending stays when `keepPending`, against new
  // originals.
  void refresh(std::size_t row, const Row& values, bool keepPending);

 private:
  struct NameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const;
  };
  struct NameEqual {
    using is_transparent = void;
    bool operator()(std::string_view left, std::string_view right) const;
  };
  struct Pending {
    Change::Kind kind = Change::Kind::update;
    std::map<std::size_t, Variant> originals;  // by column; of several columns of one origin by the first
  };

  // The row's own copy of its values, where it may be changed.
  Row& changeable(std::size_t row);
  void assign(std::size_t row, std::size_t column, const Variant& value);
  void dropLast(std::size_t row);
  void assignAll(std::size_t row, std::size_t column, const Variant& value);
  Identity identityOf(std::size_t row) const;

  Result result_;  // as it was read
  std::size_t appended_ = 0;
  std::unordered_map<std::size_t, Row> changed_;  // rows that may differ from what was read, and all appended ones
  struct Shown {
    std::size_t row = static_cast<std::size_t>(-1);
    Variant value;
  };
  mutable std::vector<Shown> shown_;  // of each column the value that was unpacked last
  std::unordered_map<std::string, std::size_t, NameHash, NameEqual> names_;
  std::vector<std::vector<std::size_t>> sameOrigin_;  // a column's group, itself included, ascending
  std::map<std::size_t, Pending> pending_;
  std::map<std::size_t, KeyIndex> indexes_;
};

}  // namespace tarnel::ado
