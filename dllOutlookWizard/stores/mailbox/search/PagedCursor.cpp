#include "PagedCursor.h"

#include <algorithm>

#include "ItemColumns.h"

namespace tarnel::mailbox {

std::string PagedCursor::source() const {
  return " FROM items i WHERE i.folder = ? AND i.series IS NULL" + query_.andCondition();
}

std::int64_t PagedCursor::count() {
  mailbox_->store.requireReach();
  Statement rows = mailbox_->store.prepare("SELECT count(*)" + source());
  rows.bind(query_.folder).bind(query_.condition.values).step();
  return rows.number(0);
}

void PagedCursor::fill(Page& page, const Row* last, std::int64_t offset) {
  Store& store = mailbox_->store;
  store.requireReach();
  // Without a page there is none that changes of others could have made stale.
  const bool isFresh = page_.generation == 0 && walk_.generation == 0;
  page.generation = isFresh ? store.generation() : store.refreshGeneration();
  const bool sorted = !query_.sort.empty();
  std::string sql;
  sql.reserve(2 * itemSelection().size());
  sql.append("SELECT ").append(itemSelection());
  if (sorted) sql += ", " + query_.sort;
  sql += source();
  if (last) sql += sorted ? " AND (" + query_.sort + ", i.id) > (?, ?)" : " AND i.id > ?";
  sql += sorted ? " ORDER BY " + query_.sort + ", i.id" : " ORDER BY i.id";
  sql += " LIMIT ? OFFSET ?";

  Statement rows = store.prepare(sql);
  rows.bind(query_.folder).bind(query_.condition.values);
  if (last && sorted) rows.bind(last->sortKey);
  if (last) rows.bind(last->item.id);
  rows.bind(static_cast<std::int64_t>(page.size)).bind(offset);
  const std::size_t size = page.size;
  page.rows.clear();
  page.used = 0;
  while (rows.step()) page.rows.push_back({readItem(rows), sorted ? rows.value(itemSelectionSize) : SqlValue()});
  page.size = std::min(size * 8, largestPage);
}

std::optional<ItemRecord> PagedCursor::at(std::int64_t index) {
  if (index < 0) return {};
  if (page_.generation != mailbox_->store.generation()) page_ = {};
  const auto end = page_.start + static_cast<std::int64_t>(page_.rows.size());
  if (index < page_.start || index >= end) {
    if (index == end && !page_.rows.empty()) {
      const Row last = std::move(page_.rows.back());
      fill(page_, &last, 0);
    } else {
      page_.size = smallestPage;
      fill(page_, nullptr, index);
    }
    page_.start = index;
    if (page_.rows.empty()) return {};
  }
  return page_.rows[static_cast<std::size_t>(index - page_.start)].item;
}

std::optional<ItemRecord> PagedCursor::first() {
  walk_ = {};
  walked_.reset();
  fill(walk_, nullptr, 0);
  return next();
}

std::optional<ItemRecord> PagedCursor::next() {
  const bool stale = walk_.generation != mailbox_->store.generation();
  if (stale || walk_.used == walk_.rows.size()) {
    if (!walked_ && !stale) return {};
    fill(walk_, walked_ ? &*walked_ : nullptr, 0);
  }
  if (walk_.used == walk_.rows.size()) return {};
  walked_ = walk_.rows[walk_.used++];
  return walked_->item;
}

}  // namespace tarnel::mailbox
