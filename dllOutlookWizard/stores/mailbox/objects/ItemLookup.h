#pragma once

#include <string_view>

#include "ItemRecord.h"
#include "Mailbox.h"

namespace tarnel::mailbox {

// The item that an entry id leads to, in whatever folder. Failure 440 for a text that is no entry id, an id of another
// store, or one whose item is gone. Without a store id the mailbox's own is meant.
ItemRecord itemOfEntryId(Mailbox& mailbox, std::string_view entryId, std::string_view storeId = {});

}  // namespace tarnel::mailbox
