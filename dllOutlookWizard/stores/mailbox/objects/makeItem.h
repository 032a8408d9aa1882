#pragma once

#include <memory>

#include "Item.h"
#include "ItemRecord.h"
#include "Mailbox.h"

namespace tarnel::mailbox {

// The object for a row, by its kind.
std::shared_ptr<outlook::Item> makeItem(std::shared_ptr<Mailbox> mailbox, ItemRecord record);
// An unsaved item. An appointment starts at the next half hour and lasts 30 minutes.
std::shared_ptr<outlook::Item> makeNewItem(std::shared_ptr<Mailbox> mailbox, outlook::ItemType type);

}  // namespace tarnel::mailbox
