#pragma once

#include <cstddef>
#include <unordered_map>

#include "Variant.h"

namespace tarnel::ado {

// Which rows may hold a value in one column. Keeps hashes alone, so whoever asks compares the values themselves.
class KeyIndex {
 public:
  void add(const Variant& value, std::size_t row);
  void remove(const Variant& value, std::size_t row);

  template <class Visit>
  void visitCandidates(const Variant& value, Visit visit) const {
    const auto [from, to] = rows_.equal_range(hash(value));
    for (auto at = from; at != to; ++at) visit(at->second);
  }

 private:
  static std::size_t hash(const Variant& value);

  std::unordered_multimap<std::size_t, std::size_t> rows_;
};

}  // namespace tarnel::ado
