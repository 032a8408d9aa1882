#pragma once

#include <cstdint>
#include <optional>

#include "EntryId.h"
#include "ItemRecord.h"
#include "Store.h"

namespace tarnel::mailbox {

bool isStored(Store& store, std::int64_t id);
std::optional<ItemRecord> findItem(Store& store, std::int64_t id);
std::optional<ItemRecord> findException(Store& store, std::int64_t series, WallSeconds original);
// Reads the long texts that the record has not yet.
void readTexts(Store& store, ItemRecord& item);

// Each inside a transaction of the caller's. insertItem gives the record its id and, where it has none, a uid.
void insertItem(Store& store, ItemRecord& item);
// Writes the columns that differ from `before` and no others. False when the item isn't in the store any more.
[[nodiscard]] bool updateItem(Store& store, const ItemRecord& before, const ItemRecord& item);
// With the exceptions of a series. False when the item isn't in the store any more.
[[nodiscard]] bool moveItemRow(Store& store, std::int64_t id, std::int64_t folder);
[[nodiscard]] bool eraseItemRow(Store& store, std::int64_t id);
// Takes one occurrence out of its series, with its exception if it has one.
void eraseOccurrence(Store& store, std::int64_t series, WallSeconds original);
[[nodiscard]] bool isErasedOccurrence(Store& store, std::int64_t series, WallSeconds original);

EntryId entryIdOf(const Store& store, const ItemRecord& item);

}  // namespace tarnel::mailbox
