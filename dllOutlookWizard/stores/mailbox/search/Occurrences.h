#pragma once

#include <optional>
#include <vector>

#include "ItemQuery.h"
#include "ItemRecord.h"
#include "Mailbox.h"

namespace tarnel::mailbox {

// The occurrence that the series has at that moment; none when it has none there, or it was deleted. Exceptions are
// not looked for.
std::optional<ItemRecord> occurrenceAt(Mailbox& mailbox, const ItemRecord& series, WallSeconds original);

// The items of a folder that match a query, each occurrence of a series as an item of its own, sorted as the query
// says. Series are expanded within the query's span; a side that it leaves open ends a year from now.
std::vector<ItemRecord> itemsWithOccurrences(Mailbox& mailbox, const ItemQuery& query);

}  // namespace tarnel::mailbox
