#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Variant.h"

namespace tarnel::ado {

// Which rows may hold a value in one column. Keeps hashes alone, so whoever asks compares the values themselves. Lies
// in two arrays of small numbers, since over many rows fresh memory costs more than all the rest.
class KeyIndex {
 public:
  // Makes room for that many rows at once.
  void reserve(std::size_t rows);
  void add(const Variant& value, std::size_t row);
  void remove(const Variant& value, std::size_t row);

  template <class Visit>
  void visitCandidates(const Variant& value, Visit visit) const {
    if (first_.empty()) return;
    const Number wanted = hash(value);
    for (Number at = first_[chainOf(wanted)]; at != none; at = entries_[at].next)
      if (entries_[at].hash == wanted) visit(entries_[at].row);
  }

 private:
  // A row, a place in `entries_` or a part of a hash; memory ends before the rows that 32 bits can count.
  using Number = std::uint32_t;
  static constexpr Number none = static_cast<Number>(-1);
  struct Entry {
    Number hash;
    Number row;
    Number next;  // of the same chain
  };

  static Number hash(const Variant& value);
  // The number of chains is a power of two.
  std::size_t chainOf(Number hash) const { return hash & (first_.size() - 1); }
  void setChains(std::size_t count);

  std::vector<Number> first_;  // by chain
  std::vector<Entry> entries_;
  Number free_ = none;  // the chain of entries that were removed
};

}  // namespace tarnel::ado
