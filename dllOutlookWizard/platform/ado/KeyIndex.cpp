#include "KeyIndex.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "Values.h"

namespace tarnel::ado {

KeyIndex::Number KeyIndex::hash(const Variant& value) {
  const std::size_t whole = hashOf(value);
  return static_cast<Number>(whole ^ whole >> 32);
}

void KeyIndex::reserve(std::size_t rows) {
  entries_.reserve(rows);
  setChains(std::bit_ceil(rows + 1));
}

void KeyIndex::setChains(std::size_t count) {
  std::vector<Number> old(count, none);
  first_.swap(old);
  for (Number at : old)
    while (at != none) {
      Number& first = first_[chainOf(entries_[at].hash)];
      const Number following = entries_[at].next;
      entries_[at].next = first;
      first = at;
      at = following;
    }
}

void KeyIndex::add(const Variant& value, std::size_t row) {
  // Null equals nothing, so it is never looked for.
  if (value.isNull()) return;
  if (free_ == none && entries_.size() >= first_.size()) setChains(std::max<std::size_t>(16, first_.size() * 2));
  const Number key = hash(value);
  Number& first = first_[chainOf(key)];
  const Number following = first;
  if (free_ != none) {
    first = free_;
    free_ = entries_[free_].next;
  } else {
    first = static_cast<Number>(entries_.size());
    entries_.emplace_back();
  }
  entries_[first] = {key, static_cast<Number>(row), following};
}

void KeyIndex::remove(const Variant& value, std::size_t row) {
  if (first_.empty()) return;
  const Number key = hash(value);
  for (Number* at = &first_[chainOf(key)]; *at != none; at = &entries_[*at].next) {
    if (entries_[*at].hash != key || entries_[*at].row != row) continue;
    const Number removed = std::exchange(*at, entries_[*at].next);
    entries_[removed].next = free_;
    free_ = removed;
    return;
  }
}

}  // namespace tarnel::ado
