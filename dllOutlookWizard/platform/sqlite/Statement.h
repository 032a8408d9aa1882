#pragma once

#include <cstdint>
#include <string_view>

#include "StatementCache.h"
#include "Variant.h"

namespace tarnel::sqlite {

class Database;

// One use of a prepared statement of the engine's own SQL. Failures as Database reports them.
class Statement {
 public:
  // A text without values in it may be kept with its database, prepared for the next use.
  enum class Use { once, again };

  // Prepares the first statement of `sql`. Failure badStatement when it can't be read.
  Statement(Database& database, std::string_view sql, Use use);
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  // Parameters count from 1. Null and empty values become NULL, truth values 0 and 1, dates ISO text.
  void bind(int parameter, const Variant& value);
  void bind(int parameter, std::int64_t value);
  // Moves to the next row; false behind the last one.
  bool step();

  sqlite3_stmt* handle() const { return handle_; }

 private:
  Database& database_;
  Use use_;
  StatementCache::Lease prepared_;
  sqlite3_stmt* handle_ = nullptr;
};

}  // namespace tarnel::sqlite
