#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "StatementCache.h"

namespace tarnel::sqlite {

class Connection;

// What a column holds: a whole number, a text (bytes are kept as text) or nothing.
using SqlValue = std::variant<std::monostate, std::int64_t, std::string>;

// One run of a prepared statement of the engine's own SQL. Whatever the engine refuses goes to its connection's
// failure.
class Statement {
 public:
  // A text without values in it is worth keeping with its connection, prepared for the next run.
  enum class Use { once, again };

  // Prepares the first statement of `sql`, or takes the one that was prepared before.
  Statement(Connection& connection, std::string_view sql, Use use = Use::again);
  Statement(Statement&& other) noexcept = default;
  Statement& operator=(Statement&&) = delete;
  ~Statement();

  // Each binds the next parameter, from the left. Texts and bytes are copied; empty ones are not NULL.
  Statement& bind(std::int64_t value);
  Statement& bind(std::string_view value);
  Statement& bind(const std::string& value) { return bind(std::string_view(value)); }
  Statement& bind(const SqlValue& value);
  Statement& bind(const std::vector<SqlValue>& values);
  Statement& bindReal(double value);
  Statement& bindBytes(std::span<const std::uint8_t> value);
  Statement& bindNull();

  // To the next row; false after the last one.
  bool step();
  // Runs a statement that gives no rows.
  void run();

  // Columns of the row, from 0.
  std::int64_t number(int column) const;
  bool flag(int column) const { return number(column) != 0; }
  bool isNull(int column) const;
  // Empty for NULL.
  std::string text(int column) const;
  SqlValue value(int column) const;

  // For what the engine tells of columns beyond that.
  sqlite3_stmt* handle() const { return handle_; }

 private:
  void require(int result) const;

  Connection* connection_;
  Use use_;
  StatementCache::Lease prepared_;
  sqlite3_stmt* handle_;
  int bound_ = 0;
};

}  // namespace tarnel::sqlite
