#include "OccurrenceCursor.h"

#include "Occurrences.h"

namespace tarnel::mailbox {

void OccurrenceCursor::refresh() {
  const std::uint64_t present = mailbox_->store.refreshGeneration();
  if (generation_ == present) return;
  items_ = itemsWithOccurrences(*mailbox_, query_);
  generation_ = present;
}

std::int64_t OccurrenceCursor::count() {
  refresh();
  return static_cast<std::int64_t>(items_.size());
}

std::optional<ItemRecord> OccurrenceCursor::at(std::int64_t index) {
  refresh();
  if (index < 0 || index >= static_cast<std::int64_t>(items_.size())) return {};
  return items_[static_cast<std::size_t>(index)];
}

std::optional<ItemRecord> OccurrenceCursor::first() {
  refresh();
  walked_ = 0;
  return next();
}

std::optional<ItemRecord> OccurrenceCursor::next() {
  if (walked_ == items_.size()) return {};
  return items_[walked_++];
}

}  // namespace tarnel::mailbox
