#pragma once

#include <string_view>
#include <vector>

#include "RowStore.h"

namespace tarnel::ado {

// A recordset's `Sort`: "column [ASC|DESC][, ...]".
class SortOrder {
 public:
  SortOrder() = default;
  // Failure 3001 for a text that can't be read, 3265 for an unknown column.
  SortOrder(std::string_view text, const RowStore& rows);

  bool isEmpty() const { return terms_.empty(); }
  // Whether row `left` comes before row `right`.
  bool before(const RowStore& rows, std::size_t left, std::size_t right) const;

 private:
  struct Term {
    std::size_t column = 0;
    bool descending = false;
  };
  std::vector<Term> terms_;
};

}  // namespace tarnel::ado
