#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace tarnel {

class SmartItem;

// The items of a collection by their keys, compared exactly. Lies in one array: a node for each of many rows would
// cost a list's filling more in memory's delays than the rows themselves. Items outlive their stay here.
class ItemKeys {
 public:
  // None: null.
  SmartItem* find(std::string_view key) const;
  // No item of that key may be there.
  void add(SmartItem& item);
  void remove(std::string_view key);
  void clear();

 private:
  struct Slot {
    std::size_t hash = 0;
    SmartItem* item = nullptr;  // null: free
  };

  std::size_t slotAfter(std::size_t slot) const { return (slot + 1) & (slots_.size() - 1); }
  std::size_t homeOf(std::size_t hash) const { return hash & (slots_.size() - 1); }
  // Where the key stands, or the free slot in which the search for it ends.
  std::size_t slotOf(std::string_view key, std::size_t hash) const;
  void put(Slot entry);
  void grow();

  std::vector<Slot> slots_;  // a power of two, at most half of them taken
  std::size_t count_ = 0;
};

}  // namespace tarnel
