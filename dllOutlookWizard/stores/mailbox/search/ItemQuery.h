#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "FilterSql.h"

namespace tarnel::mailbox {

// What a collection of items asks the store for.
struct ItemQuery {
  std::int64_t folder = 0;
  SqlCondition condition;  // joined by AND from all restrictions; empty when there is none
  TimeSpan span;           // where the restrictions leave items at all
  std::string sort;        // a column; empty: in the order of creation
  bool includeRecurrences = false;

  // Narrows the query by a filter. Failure 440 when it can't be read.
  void restrict(std::string_view filter, Store& store, const Locale& locale);
  // " AND (...)", or nothing when there is no restriction.
  std::string andCondition() const { return condition.sql.empty() ? "" : " AND (" + condition.sql + ")"; }
};

}  // namespace tarnel::mailbox
