#pragma once

#include <cstdint>
#include <optional>

#include "ItemRecord.h"

namespace tarnel::mailbox {

// The rows of a collection, by place and one after the other.
class ItemCursor {
 public:
  virtual ~ItemCursor() = default;

  virtual std::int64_t count() = 0;
  // From 0; none beyond the last one.
  virtual std::optional<ItemRecord> at(std::int64_t index) = 0;
  // Walks from the first row on; none at the end.
  virtual std::optional<ItemRecord> first() = 0;
  virtual std::optional<ItemRecord> next() = 0;
};

}  // namespace tarnel::mailbox
