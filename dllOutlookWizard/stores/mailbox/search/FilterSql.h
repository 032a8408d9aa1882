#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "FilterParser.h"
#include "Locale.h"
#include "Store.h"
#include "WallTime.h"

namespace tarnel::mailbox {

// A condition on a row of items named `i`, with its parameters in the order of their question marks.
struct SqlCondition {
  std::string sql;
  std::vector<SqlValue> values;
};

// Properties that a filter or a sort can name: those of Outlook's items, case ignored, and in filters the user
// properties that the store knows. `text` is the whole filter, for the failure 440 that an unknown property, or a
// value that its property can't have, ends in.
SqlCondition sqlCondition(const Filter& filter, std::string_view text, Store& store, const Locale& locale);

// The column that a sort by "[Property]" goes by; failure 440 for an unknown property.
std::string sortColumn(std::string_view property);

// The time in which all items lie that a filter can leave: they end at or after `from` and start at or before `to`.
// None: the filter leaves that side open.
struct TimeSpan {
  std::optional<WallSeconds> from;
  std::optional<WallSeconds> to;
};

TimeSpan timeSpan(const Filter& filter, const Locale& locale);

}  // namespace tarnel::mailbox
