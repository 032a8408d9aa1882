#include "CheckedRows.h"

#include "Platform.h"

namespace tarnel {

CheckedRows::CheckedRows(SmartUI& list) : list_(list) {
  for (const SmartItem& row : list.Items())
    if (row.Checked()) keys_.push_back(row.Key());
}

void CheckedRows::forEach(const std::function<void(SmartItem& row)>& act) const {
  const auto total = static_cast<int>(keys_.size());
  for (int done = 0; done < total; ++done) {
    const std::string& key = keys_[static_cast<std::size_t>(done)];
    if (list_.Items().Exists(key)) act(list_.Items().Item(key));
    platform().desktop.progress(done + 1, total);
  }
}

}  // namespace tarnel
