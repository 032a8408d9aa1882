#include "PropertySearch.h"

#include "ItemColumns.h"

namespace tarnel::mailbox {

std::vector<std::int64_t> itemsWithProperties(Mailbox& mailbox, std::int64_t folder,
                                              const std::vector<outlook::mapi::PropertyCondition>& conditions) {
  std::string joins, where;
  std::vector<SqlValue> values{folder};
  for (const auto& [nameId, value] : conditions) {
    values.emplace_back(std::int64_t{nameId});
    if (!value) {
      where += " AND EXISTS (SELECT 1 FROM userProperties p WHERE p.item = i.id AND p.name = ?)";
      continue;
    }
    // An item has one value of a name, so that a join names no item twice; a list of ids would be built each time.
    const std::string table = "p" + std::to_string(values.size());
    joins += " JOIN userProperties " + table + " ON " + table + ".item = i.id";
    where += " AND " + table + ".name = ? AND " + table + ".value = ?";
    values.emplace_back(*value);
  }
  Statement rows = mailbox.store.prepare("SELECT " + itemSelection() + " FROM items i" + joins +
                                         " WHERE +i.folder = ?" + where + " ORDER BY i.id");
  rows.bind(values);
  std::vector<std::int64_t> found;
  while (rows.step()) {
    if (found.empty()) mailbox.found.keep(mailbox.store, readItem(rows));
    found.push_back(rows.number(0));
  }
  return found;
}

}  // namespace tarnel::mailbox
