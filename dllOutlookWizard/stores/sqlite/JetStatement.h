#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Tokens.h"

namespace tarnel::sqlite {

// One statement of Jet's SQL, translated token by token: dates and truth values become the values that the file holds,
// "..." is a text, & joins texts, and texts compare and sort without regard to case however their columns are declared.
// Failure ado's badStatement for a text that can't be read and for more than one statement.
class JetStatement {
 public:
  explicit JetStatement(std::string_view text);

  bool isSelect() const { return firstWordIs({"SELECT"}); }
  // INSERT, UPDATE and DELETE, and those that make and drop tables and indexes.
  bool isCommand() const { return firstWordIs({"INSERT", "UPDATE", "DELETE", "CREATE", "DROP", "ALTER"}); }

  const std::string& sql() const { return sql_; }
  // A SELECT from one table without DISTINCT and grouping, with the row's identity as a last column more. None for any
  // other statement.
  std::optional<std::string> sqlWithRowId() const;

 private:
  bool firstWordIs(const std::vector<std::string_view>& words) const;

  std::vector<ado::Token> tokens_;
  std::string sql_;
};

}  // namespace tarnel::sqlite
