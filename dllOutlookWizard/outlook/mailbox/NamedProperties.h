#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Store.h"

namespace tarnel::mailbox {

// A user property as the store keeps it.
struct NamedProperty {
  std::string name;
  std::string value;

  friend bool operator==(const NamedProperty&, const NamedProperty&) = default;
};

// Gives an unknown name the next free id, inside a transaction of its own or the caller's. Failure when all of MAPI's
// ids are taken.
std::int64_t nameIdOf(Store& store, std::string_view name);

// In the order of their names' ids.
std::vector<NamedProperty> readProperties(Store& store, std::int64_t item);
// Inside a transaction of the caller's.
void writeProperty(Store& store, std::int64_t item, const NamedProperty& property);

}  // namespace tarnel::mailbox
