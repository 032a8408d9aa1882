#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnel {

// The items of a collection by their Key(), compared exactly. One array: a node for each of many rows would cost a
// list's filling more in memory's delays than the rows themselves. Items stay alive as long as they are in here.
template <class Item>
class ItemKeys {
 public:
  // None: null.
  Item* find(std::string_view key) const { return slots_.empty() ? nullptr : slots_[slotOf(key, hashOf(key))].item; }

  // No item of that key may be there.
  void add(Item& item) {
    if (slots_.size() < 2 * (count_ + 1)) grow();
    put({hashOf(item.Key()), &item});
    ++count_;
  }

  void remove(std::string_view key) {
    if (slots_.empty()) return;
    std::size_t slot = slotOf(key, hashOf(key));
    if (!slots_[slot].item) return;
    slots_[slot] = {};
    --count_;
    // A search ends at a free slot, so whatever comes after this one finds its place again.
    for (slot = slotAfter(slot); slots_[slot].item; slot = slotAfter(slot)) put(std::exchange(slots_[slot], {}));
  }

  void clear() {
    slots_.clear();
    count_ = 0;
  }

 private:
  struct Slot {
    std::size_t hash = 0;
    Item* item = nullptr;  // null: free
  };
  static constexpr std::size_t fewestSlots = 16;

  static std::size_t hashOf(std::string_view key) { return std::hash<std::string_view>{}(key); }
  std::size_t slotAfter(std::size_t slot) const { return (slot + 1) & (slots_.size() - 1); }
  std::size_t homeOf(std::size_t hash) const { return hash & (slots_.size() - 1); }

  // Where the key is, or the free slot in which the search for it ends.
  std::size_t slotOf(std::string_view key, std::size_t hash) const {
    std::size_t slot = homeOf(hash);
    while (slots_[slot].item && (slots_[slot].hash != hash || slots_[slot].item->Key() != key)) slot = slotAfter(slot);
    return slot;
  }

  void put(Slot entry) {
    std::size_t slot = homeOf(entry.hash);
    while (slots_[slot].item) slot = slotAfter(slot);
    slots_[slot] = entry;
  }

  void grow() {
    const std::vector<Slot> old = std::exchange(slots_, std::vector<Slot>(std::max(fewestSlots, 2 * slots_.size())));
    for (const Slot& entry : old)
      if (entry.item) put(entry);
  }

  std::vector<Slot> slots_;  // a power of two, at most half of them taken
  std::size_t count_ = 0;
};

}  // namespace tarnel
