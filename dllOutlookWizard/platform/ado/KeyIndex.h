#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Variant.h"

namespace tarnel::ado {

// Which rows may hold a value in one column. Keeps hashes alone, so whoever asks compares the values themselves. Lies
// in two arrays, since over many rows a node for each would cost more in memory's delays than all the rest.
class KeyIndex {
 public:
  // Makes room for that many rows at once.
  void reserve(std::size_t rows);
  void add(const Variant& value, std::size_t row);
  void remove(const Variant& value, std::size_t row);

  template <class Visit>
  void visitCandidates(const Variant& value, Visit visit) const {
    if (first_.empty()) return;
    const std::size_t wanted = hash(value);
    for (std::size_t at = first_[chainOf(wanted)]; at != none; at = entries_[at].next)
      if (entries_[at].hash == wanted) visit(entries_[at].row);
  }

 private:
  static constexpr std::size_t none = static_cast<std::size_t>(-1);
  struct Entry {
    std::size_t hash;
    std::size_t row;
    std::size_t next;  // of the same chain
  };

  static std::size_t hash(const Variant& value);
  // The number of chains is a power of two.
  std::size_t chainOf(std::size_t hash) const { return hash & (first_.size() - 1); }
  void setChains(std::size_t count);

  std::vector<std::size_t> first_;  // by chain
  std::vector<Entry> entries_;
  std::size_t free_ = none;  // the chain of entries that were removed
};

}  // namespace tarnel::ado
