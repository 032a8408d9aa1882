#pragma once

#include <cstdint>
#include <vector>

#include "Mailbox.h"
#include "Mapi.h"

namespace tarnel::mailbox {

// The ids of a folder's items that meet all conditions, in the order of their creation, found through the index of
// values. The first of them becomes the mailbox's `found` item.
std::vector<std::int64_t> itemsWithProperties(Mailbox& mailbox, std::int64_t folder,
                                              const std::vector<outlook::mapi::PropertyCondition>& conditions);

}  // namespace tarnel::mailbox
