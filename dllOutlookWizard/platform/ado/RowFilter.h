#pragma once

#include <string_view>
#include <vector>

#include "RowStore.h"

namespace tarnel::ado {

// A recordset's `Filter`: "column operator value [AND ...]" with the operators = <> < > <= >=.
class RowFilter {
 public:
  // Passes every row.
  RowFilter() = default;
  // Failure 3001 for a text that can't be read, 3265 for an unknown column, 13 for a value that doesn't fit its column.
  RowFilter(std::string_view text, const RowStore& rows);

  bool passes(const RowStore& rows, std::size_t row) const;

 private:
  enum class Operator { equal, notEqual, less, greater, lessOrEqual, greaterOrEqual };
  struct Condition {
    std::size_t column = 0;
    Operator comparison = Operator::equal;
    Variant value;
  };

  static bool holds(const Variant& held, const Condition& condition);

  std::vector<Condition> conditions_;
};

}  // namespace tarnel::ado
