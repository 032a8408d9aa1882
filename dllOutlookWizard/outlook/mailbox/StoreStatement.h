#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "StatementCache.h"

namespace tarnel::mailbox {

class Store;

// What a column of the store holds: a whole number, a text, bytes are kept as text, or nothing.
using SqlValue = std::variant<std::monostate, std::int64_t, std::string>;

// One run of a prepared statement. It goes back to its store, ready for the next run, when this object goes; it must
// not outlive the store. Any complaint of the engine becomes a Failure that names the mailbox.
class StoreStatement {
 public:
  StoreStatement(Store& store, sqlite::StatementCache::Lease prepared)
      : store_(&store), prepared_(std::move(prepared)), statement_(prepared_.handle()) {}
  StoreStatement(StoreStatement&& other) noexcept = default;
  StoreStatement& operator=(StoreStatement&&) = delete;
  ~StoreStatement();

  // Binds the next parameter, from the left. Text is copied.
  StoreStatement& bind(std::int64_t value);
  StoreStatement& bind(std::string_view value);
  StoreStatement& bind(const std::string& value) { return bind(std::string_view(value)); }
  StoreStatement& bind(const SqlValue& value);
  StoreStatement& bind(const std::vector<SqlValue>& values);

  // To the next row; false behind the last one.
  bool step();
  // Runs a statement that gives no rows.
  void run();

  // Columns of the row, from 0.
  std::int64_t number(int column) const;
  bool flag(int column) const { return number(column) != 0; }
  bool isNull(int column) const;
  std::string text(int column) const;
  SqlValue value(int column) const;

 private:
  void check(int result) const;

  Store* store_;
  sqlite::StatementCache::Lease prepared_;
  sqlite3_stmt* statement_;
  int bound_ = 0;
};

}  // namespace tarnel::mailbox
