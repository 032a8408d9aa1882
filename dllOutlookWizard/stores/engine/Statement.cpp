#include "Statement.h"

#include <sqlite3.h>

#include "Connection.h"

namespace tarnel::sqlite {

Statement::Statement(Connection& connection, std::string_view sql, Use use)
    : connection_(&connection), use_(use), prepared_(connection.statements().take(connection.handle(), sql)) {
  if (!prepared_) connection.fail(Refusal::Stage::preparing);
  handle_ = prepared_.handle();
}

Statement::~Statement() {
  if (prepared_ && use_ == Use::again) connection_->statements().giveBack(std::move(prepared_));
}

void Statement::require(int result) const {
  if (result != SQLITE_OK) connection_->fail(Refusal::Stage::running);
}

Statement& Statement::bind(std::int64_t value) {
  require(sqlite3_bind_int64(handle_, ++bound_, value));
  return *this;
}

Statement& Statement::bind(std::string_view value) {
  // A null pointer would bind NULL, not an empty text.
  const char* text = value.empty() ? "" : value.data();
  require(sqlite3_bind_text64(handle_, ++bound_, text, value.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
  return *this;
}

Statement& Statement::bind(const SqlValue& value) {
  if (const auto* number = std::get_if<std::int64_t>(&value)) return bind(*number);
  if (const auto* text = std::get_if<std::string>(&value)) return bind(std::string_view(*text));
  return bindNull();
}

Statement& Statement::bind(const std::vector<SqlValue>& values) {
  for (const SqlValue& value : values) bind(value);
  return *this;
}

Statement& Statement::bindReal(double value) {
  require(sqlite3_bind_double(handle_, ++bound_, value));
  return *this;
}

Statement& Statement::bindBytes(std::span<const std::uint8_t> value) {
  ++bound_;
  // A null pointer would bind NULL here, too.
  require(value.empty() ? sqlite3_bind_zeroblob(handle_, bound_, 0)
                        : sqlite3_bind_blob64(handle_, bound_, value.data(), value.size(), SQLITE_TRANSIENT));
  return *this;
}

Statement& Statement::bindNull() {
  require(sqlite3_bind_null(handle_, ++bound_));
  return *this;
}

bool Statement::step() {
  const int result = sqlite3_step(handle_);
  if (result != SQLITE_ROW && result != SQLITE_DONE) connection_->fail(Refusal::Stage::running);
  return result == SQLITE_ROW;
}

void Statement::run() {
  while (step()) {
  }
}

std::int64_t Statement::number(int column) const { return sqlite3_column_int64(handle_, column); }

bool Statement::isNull(int column) const { return sqlite3_column_type(handle_, column) == SQLITE_NULL; }

std::string Statement::text(int column) const {
  const auto* bytes = static_cast<const char*>(sqlite3_column_blob(handle_, column));
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(handle_, column));
  return bytes ? std::string(bytes, size) : std::string();
}

SqlValue Statement::value(int column) const {
  switch (sqlite3_column_type(handle_, column)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER:
      return number(column);
    default:
      return text(column);
  }
}

}  // namespace tarnel::sqlite
