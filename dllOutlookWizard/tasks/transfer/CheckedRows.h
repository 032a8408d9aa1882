#pragma once

#include <functional>
#include <string>
#include <vector>

#include "SmartUI.h"

namespace tarnel {

// The rows of a list that were checked when the run began, in list order. Rows may go and come meanwhile.
class CheckedRows {
 public:
  explicit CheckedRows(SmartUI& list);

  std::size_t count() const { return keys_.size(); }
  // Calls back for each row that is still there, and shows how far the run is.
  void forEach(const std::function<void(SmartItem& row)>& act) const;

 private:
  SmartUI& list_;
  std::vector<std::string> keys_;
};

}  // namespace tarnel
