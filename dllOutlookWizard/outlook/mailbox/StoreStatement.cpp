#include "StoreStatement.h"

#include <sqlite3.h>

#include "Store.h"

namespace tarnel::mailbox {

StoreStatement::~StoreStatement() {
  if (prepared_) store_->takeBack(std::move(prepared_));
}

void StoreStatement::check(int result) const {
  if (result != SQLITE_OK) store_->fail(result);
}

StoreStatement& StoreStatement::bind(std::int64_t value) {
  check(sqlite3_bind_int64(statement_, ++bound_, value));
  return *this;
}

StoreStatement& StoreStatement::bind(std::string_view value) {
  // A null pointer would bind NULL, not an empty text.
  const char* text = value.empty() ? "" : value.data();
  check(sqlite3_bind_text64(statement_, ++bound_, text, value.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
  return *this;
}

StoreStatement& StoreStatement::bind(const SqlValue& value) {
  if (const auto* number = std::get_if<std::int64_t>(&value)) return bind(*number);
  if (const auto* text = std::get_if<std::string>(&value)) return bind(std::string_view(*text));
  check(sqlite3_bind_null(statement_, ++bound_));
  return *this;
}

StoreStatement& StoreStatement::bind(const std::vector<SqlValue>& values) {
  for (const SqlValue& value : values) bind(value);
  return *this;
}

bool StoreStatement::step() {
  const int result = sqlite3_step(statement_);
  if (result != SQLITE_ROW && result != SQLITE_DONE) store_->fail(result);
  return result == SQLITE_ROW;
}

void StoreStatement::run() {
  while (step()) {
  }
}

std::int64_t StoreStatement::number(int column) const { return sqlite3_column_int64(statement_, column); }

bool StoreStatement::isNull(int column) const { return sqlite3_column_type(statement_, column) == SQLITE_NULL; }

std::string StoreStatement::text(int column) const {
  const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement_, column));
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_, column));
  return bytes ? std::string(bytes, size) : std::string();
}

SqlValue StoreStatement::value(int column) const {
  switch (sqlite3_column_type(statement_, column)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER:
      return number(column);
    default:
      return text(column);
  }
}

}  // namespace tarnel::mailbox
