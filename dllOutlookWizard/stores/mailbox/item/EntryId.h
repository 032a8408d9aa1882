#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "Variant.h"

namespace tarnel::mailbox {

// Which item of which mailbox: 16 bytes of the store's id, 8 of the item's number and, for an occurrence of a series,
// 8 of the moment at which the series has it. Nobody outside reads more into it.
struct EntryId {
  std::string storeId;
  std::int64_t item = 0;
  std::optional<std::int64_t> original;

  Bytes bytes() const;
  // Upper-case hexadecimal digits.
  std::string text() const;
  // None for a text that is no entry id.
  static std::optional<EntryId> parse(std::string_view text);
};

}  // namespace tarnel::mailbox
