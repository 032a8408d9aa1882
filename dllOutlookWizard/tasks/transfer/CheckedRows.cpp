#include "CheckedRows.h"

#include "Platform.h"

namespace tarnel {

int countCheckedRows(SmartUI& list) {
  int count = 0;
  for (const SmartItem& row : list.Items()) count += row.Checked() ? 1 : 0;
  return count;
}

void forEachCheckedRow(SmartUI& list, const std::function<void(SmartItem& row)>& act) {
  SmartItems& rows = list.Items();
  const int total = countCheckedRows(list);
  int done = 0;
  for (std::size_t i = 0; i < rows.Count();) {
    SmartItem& row = rows.at(i);
    if (!row.Checked()) {
      ++i;
      continue;
    }
    const std::string key = row.Key();
    act(row);
    const bool stayed = i < rows.Count() && rows.at(i).Key() == key;
    if (stayed) ++i;
    if (++done < total) platform().desktop.progress(done, total);
  }
  platform().desktop.progress(total, total);
}

}  // namespace tarnel
