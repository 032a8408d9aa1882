#include "KeyIndex.h"

#include "Values.h"

namespace tarnel::ado {

std::size_t KeyIndex::hash(const Variant& value) { return hashOf(value); }

void KeyIndex::add(const Variant& value, std::size_t row) {
  // Null equals nothing, so it is never looked for.
  if (!value.isNull()) rows_.emplace(hash(value), row);
}

void KeyIndex::remove(const Variant& value, std::size_t row) {
  const auto [from, to] = rows_.equal_range(hash(value));
  for (auto at = from; at != to; ++at) {
    if (at->second != row) continue;
    rows_.erase(at);
    return;
  }
}

}  // namespace tarnel::ado
