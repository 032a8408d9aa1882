#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "NamedProperty.h"
#include "Store.h"

namespace tarnel::mailbox {

// Gives an unknown name the next free id, inside a transaction of its own or the caller's. Failure when all of MAPI's
// ids are taken.
std::int64_t nameIdOf(Store& store, std::string_view name);

// In the order of their names' ids.
std::vector<NamedProperty> readProperties(Store& store, std::int64_t item);
// Inside a transaction of the caller's.
void writeProperty(Store& store, std::int64_t item, const NamedProperty& property);

}  // namespace tarnel::mailbox
