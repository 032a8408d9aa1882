#include "ItemKeys.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "SmartItems.h"

namespace tarnel {
namespace {

constexpr std::size_t fewestSlots = 16;

std::size_t hashOf(std::string_view key) { return std::hash<std::string_view>{}(key); }

}  // namespace

std::size_t ItemKeys::slotOf(std::string_view key, std::size_t hash) const {
  std::size_t slot = homeOf(hash);
  while (slots_[slot].item && (slots_[slot].hash != hash || slots_[slot].item->Key() != key)) slot = slotAfter(slot);
  return slot;
}

SmartItem* ItemKeys::find(std::string_view key) const {
  return slots_.empty() ? nullptr : slots_[slotOf(key, hashOf(key))].item;
}

void ItemKeys::add(SmartItem& item) {
  if (slots_.size() < 2 * (count_ + 1)) grow();
  put({hashOf(item.Key()), &item});
  ++count_;
}

void ItemKeys::put(Slot entry) {
  std::size_t slot = homeOf(entry.hash);
  while (slots_[slot].item) slot = slotAfter(slot);
  slots_[slot] = entry;
}

void ItemKeys::grow() {
  const std::vector<Slot> old = std::exchange(slots_, std::vector<Slot>(std::max(fewestSlots, 2 * slots_.size())));
  for (const Slot& entry : old)
    if (entry.item) put(entry);
}

void ItemKeys::remove(std::string_view key) {
  if (slots_.empty()) return;
  std::size_t slot = slotOf(key, hashOf(key));
  if (!slots_[slot].item) return;
  slots_[slot] = {};
  --count_;
  // A search ends at a free slot, so whatever stands behind this one finds its place anew.
  for (slot = slotAfter(slot); slots_[slot].item; slot = slotAfter(slot)) put(std::exchange(slots_[slot], {}));
}

void ItemKeys::clear() {
  slots_.clear();
  count_ = 0;
}

}  // namespace tarnel
