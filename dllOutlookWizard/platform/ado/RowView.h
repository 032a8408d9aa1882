#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "RowFilter.h"
#include "RowStore.h"
#include "SortOrder.h"

namespace tarnel::ado {

// Which rows of a store a cursor walks, and in which order. Worked out when it is built: a value set later moves no
// row.
class RowView {
 public:
  RowView() = default;
  RowView(const RowStore& rows, const RowFilter& filter, const SortOrder& sort);

  std::size_t size() const { return order_.size(); }
  std::size_t rowAt(std::size_t position) const { return order_[position]; }
  // None for a row that is passed over.
  std::optional<std::size_t> positionOf(std::size_t row) const;
  void append(std::size_t row);
  // Leaves the rows from that number on out.
  void cutTo(std::size_t rowCount);

 private:
  std::vector<std::size_t> order_;
  std::vector<std::size_t> positions_;  // by row
};

}  // namespace tarnel::ado
