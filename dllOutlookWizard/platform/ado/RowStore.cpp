#include "RowStore.h"

#include <algorithm>
#include <cassert>

#include "Conversions.h"
#include "Failure.h"
#include "KeyColumns.h"
#include "Values.h"

namespace tarnel::ado {

void failNoSuchItem(std::string_view nameOrOrdinal) {
  throw Failure(failure::noSuchItem,
                "Item cannot be found in the collection corresponding to the requested name or ordinal: " +
                    std::string(nameOrOrdinal));
}

std::size_t RowStore::NameHash::operator()(std::string_view name) const {
  std::size_t hash = name.size();
  // Setting bit 5 makes capital and small letters alike.
  for (const char c : name) hash = hash * 131 + (static_cast<unsigned char>(c) | 0x20U);
  return hash;
}

bool RowStore::NameEqual::operator()(std::string_view left, std::string_view right) const {
  return left == right || equalsIgnoringCase(left, right);
}

RowStore::RowStore(Result result) : result_(std::move(result)), shown_(result_.columns.size()) {
  for (std::size_t i = 0; i < columnCount(); ++i) {
    const Column& one = column(i);
    names_.emplace(one.name, i);
    std::vector<std::size_t> group;
    for (std::size_t other = 0; other < columnCount(); ++other) {
      const bool shared = !one.origin.empty() && equalsIgnoringCase(one.origin, column(other).origin) &&
                          equalsIgnoringCase(one.table, column(other).table);
      if (shared || other == i) group.push_back(other);
    }
    sameOrigin_.push_back(std::move(group));
  }
}

std::size_t RowStore::columnNamed(std::string_view name) const {
  const auto found = names_.find(name);
  if (found == names_.end()) failNoSuchItem(name);
  return found->second;
}

const Variant& RowStore::shownValue(std::size_t row, std::size_t column) const {
  if (!changed_.empty())
    if (const auto changed = changed_.find(row); changed != changed_.end()) return changed->second[column];
  Shown& shown = shown_[column];
  if (shown.row != row) shown = {row, result_.rows.value(row, column)};
  return shown.value;
}

Variant RowStore::value(std::size_t row, std::size_t column) const {
  const auto changed = changed_.find(row);
  return changed == changed_.end() ? result_.rows.value(row, column) : changed->second[column];
}

void RowStore::set(std::size_t row, std::size_t column, const Variant& value) {
  const Variant kept = fitted(value, this->column(column));
  pending_[row].originals.try_emplace(sameOrigin_[column].front(), this->value(row, column));
  assignAll(row, column, kept);
}

std::size_t RowStore::append() {
  const std::size_t row = rowCount();
  changed_.emplace(row, Row(columnCount(), Variant(Null{})));
  ++appended_;
  result_.rowIds.push_back(0);
  pending_[row].kind = Change::Kind::insert;
  return row;
}

std::vector<std::size_t> RowStore::rowsEqual(std::size_t column, const Variant& value) {
  std::vector<std::size_t> rows;
  if (value.isNull()) return rows;
  const Variant wanted = comparable(value, this->column(column));
  const auto [at, isNew] = indexes_.try_emplace(column);
  if (isNew) {
    at->second.reserve(rowCount());
    for (std::size_t row = 0; row < rowCount(); ++row) at->second.add(this->value(row, column), row);
  }
  const bool toTheLetter = holdsKeys(this->column(column).name);
  at->second.visitCandidates(wanted, [&](std::size_t row) {
    const Variant held = this->value(row, column);
    if (toTheLetter ? textOrEmpty(held) == textOrEmpty(wanted) : compareValues(held, wanted) == 0) rows.push_back(row);
  });
  return rows;
}

std::vector<std::size_t> RowStore::pendingRows() const {
  std::vector<std::size_t> rows;
  for (const auto& [row, pending] : pending_) rows.push_back(row);
  return rows;
}

std::vector<Change> RowStore::changesOf(const std::vector<std::size_t>& rows) const {
  std::vector<Change> changes;
  for (const std::size_t row : rows) {
    const Pending& pending = pending_.at(row);
    Change change;
    change.kind = pending.kind;
    change.identity = identityOf(row);
    for (const auto& [column, original] : pending.originals) {
      change.columns.push_back(column);
      change.values.push_back(value(row, column));
      change.original.push_back(original);
    }
    changes.push_back(std::move(change));
  }
  return changes;
}

void RowStore::settle(const std::vector<std::size_t>& rows, const std::vector<Written>& written) {
  assert(rows.size() == written.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    result_.rowIds[rows[i]] = written[i].rowId;
    refresh(rows[i], written[i].row, false);
  }
}

void RowStore::cancel() {
  for (auto pending = pending_.rbegin(); pending != pending_.rend(); ++pending) {
    const auto& [row, change] = *pending;
    if (change.kind == Change::Kind::insert)
      dropLast(row);
    else
      for (const auto& [column, original] : change.originals) assignAll(row, column, original);
  }
  pending_.clear();
}

void RowStore::dropLast(std::size_t row) {
  assert(row + 1 == rowCount());
  for (auto& [column, index] : indexes_) index.remove(value(row, column), row);
  for (Shown& shown : shown_)
    if (shown.row == row) shown = {};
  changed_.erase(row);
  result_.rowIds.pop_back();
  --appended_;
}

std::vector<std::size_t> RowStore::storedRows() const {
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < rowCount(); ++row) {
    const auto found = pending_.find(row);
    if (found == pending_.end() || found->second.kind == Change::Kind::update) rows.push_back(row);
  }
  return rows;
}

std::vector<Identity> RowStore::identitiesOf(const std::vector<std::size_t>& rows) const {
  std::vector<Identity> identities;
  identities.reserve(rows.size());
  for (const std::size_t row : rows) identities.push_back(identityOf(row));
  return identities;
}

void RowStore::refresh(std::size_t row, const Row& values, bool keepPending) {
  const auto pending = pending_.find(row);
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (keepPending && pending != pending_.end()) {
      const auto original = pending->second.originals.find(sameOrigin_[i].front());
      if (original != pending->second.originals.end()) {
        original->second = values[i];
        continue;
      }
    }
    assign(row, i, values[i]);
  }
  if (!keepPending) pending_.erase(row);
}

void RowStore::assignAll(std::size_t row, std::size_t column, const Variant& value) {
  for (const std::size_t one : sameOrigin_[column]) assign(row, one, value);
}

void RowStore::assign(std::size_t row, std::size_t column, const Variant& value) {
  Variant& held = changeable(row)[column];
  if (const auto index = indexes_.find(column); index != indexes_.end()) {
    index->second.remove(held, row);
    index->second.add(value, row);
  }
  held = value;
}

Row& RowStore::changeable(std::size_t row) {
  const auto changed = changed_.find(row);
  return changed != changed_.end() ? changed->second : changed_.emplace(row, result_.rows[row]).first->second;
}

Identity RowStore::identityOf(std::size_t row) const {
  Identity identity{result_.rowIds[row], {}};
  const auto pending = pending_.find(row);
  for (const std::size_t key : result_.keyColumns) {
    const std::size_t first = sameOrigin_[key].front();
    const bool wasSet = pending != pending_.end() && pending->second.originals.contains(first);
    identity.keys.push_back(wasSet ? pending->second.originals.at(first) : value(row, key));
  }
  return identity;
}

}  // namespace tarnel::ado
