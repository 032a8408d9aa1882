#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Variant.h"

struct sqlite3;
struct sqlite3_stmt;

namespace tarnel::sqlite {

// A prepared statement of the engine's own SQL. Failures as Database reports them.
class Statement {
 public:
  // Prepares the first statement of `sql`. Failure badStatement when it can't be read.
  Statement(sqlite3* database, std::string_view sql);
  ~Statement();
  Statement(Statement&& other) noexcept;
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  // Parameters count from 1. Null and empty values become NULL, truth values 0 and 1, dates ISO text.
  void bind(int parameter, const Variant& value);
  void bind(int parameter, std::int64_t value);
  // Moves to the next row; false behind the last one.
  bool step();
  // Ready to run again; the parameters stay.
  void reset();

  sqlite3_stmt* handle() const { return handle_; }

 private:
  sqlite3* database_;
  sqlite3_stmt* handle_ = nullptr;
};

}  // namespace tarnel::sqlite
