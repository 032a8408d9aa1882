#include "ItemQuery.h"

#include <algorithm>

namespace tarnel::mailbox {

void ItemQuery::restrict(std::string_view filter, Store& store, const Locale& locale) {
  const Filter parsed = parseFilter(filter);
  const SqlCondition added = sqlCondition(parsed, filter, store, locale);
  condition.sql = condition.sql.empty() ? added.sql : "(" + condition.sql + ") AND (" + added.sql + ")";
  condition.values.insert(condition.values.end(), added.values.begin(), added.values.end());

  const TimeSpan narrower = timeSpan(parsed, locale);
  if (narrower.from) span.from = std::max(span.from.value_or(*narrower.from), *narrower.from);
  if (narrower.to) span.to = std::min(span.to.value_or(*narrower.to), *narrower.to);
}

}  // namespace tarnel::mailbox
