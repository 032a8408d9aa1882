#include "RowView.h"

#include <algorithm>

namespace tarnel::ado {
namespace {
constexpr auto passedOver = static_cast<std::size_t>(-1);
}

RowView::RowView(const RowStore& rows, const RowFilter& filter, const SortOrder& sort)
    : positions_(rows.rowCount(), passedOver) {
  order_.reserve(rows.rowCount());
  for (std::size_t row = 0; row < rows.rowCount(); ++row)
    if (filter.passes(rows, row)) order_.push_back(row);
  if (!sort.isEmpty())
    std::stable_sort(order_.begin(), order_.end(),
                     [&](std::size_t left, std::size_t right) { return sort.before(rows, left, right); });
  for (std::size_t position = 0; position < order_.size(); ++position) positions_[order_[position]] = position;
}

std::optional<std::size_t> RowView::positionOf(std::size_t row) const {
  if (positions_[row] == passedOver) return {};
  return positions_[row];
}

void RowView::append(std::size_t row) {
  positions_.resize(row + 1, passedOver);
  positions_[row] = order_.size();
  order_.push_back(row);
}

void RowView::cutTo(std::size_t rowCount) {
  std::erase_if(order_, [&](std::size_t row) { return row >= rowCount; });
  positions_.resize(rowCount, passedOver);
}

}  // namespace tarnel::ado
