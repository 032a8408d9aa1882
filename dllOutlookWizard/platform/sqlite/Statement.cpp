#include "Statement.h"

#include <sqlite3.h>

#include <utility>

#include "Database.h"
#include "Failure.h"

namespace tarnel::sqlite {
namespace {

struct Binder {
  sqlite3_stmt* statement;
  int parameter;

  int operator()(std::monostate) const { return sqlite3_bind_null(statement, parameter); }
  int operator()(Null) const { return sqlite3_bind_null(statement, parameter); }
  int operator()(bool value) const { return sqlite3_bind_int(statement, parameter, value ? 1 : 0); }
  int operator()(std::int32_t value) const { return sqlite3_bind_int(statement, parameter, value); }
  int operator()(float value) const { return sqlite3_bind_double(statement, parameter, static_cast<double>(value)); }
  int operator()(double value) const { return sqlite3_bind_double(statement, parameter, value); }
  int operator()(Date value) const { return (*this)(isoText(value)); }
  int operator()(const std::string& value) const {
    return sqlite3_bind_text64(statement, parameter, value.data(), value.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
  }
  int operator()(const Bytes& value) const {
    // A null pointer would bind NULL; no bytes are still bytes.
    if (value.empty()) return sqlite3_bind_zeroblob(statement, parameter, 0);
    return sqlite3_bind_blob64(statement, parameter, value.data(), value.size(), SQLITE_TRANSIENT);
  }
};

}  // namespace

Statement::Statement(sqlite3* database, std::string_view sql) : database_(database) {
  if (sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &handle_, nullptr) != SQLITE_OK)
    failOf(database, failure::badStatement);
}

Statement::~Statement() { sqlite3_finalize(handle_); }

Statement::Statement(Statement&& other) noexcept
    : database_(other.database_), handle_(std::exchange(other.handle_, nullptr)) {}

void Statement::bind(int parameter, const Variant& value) {
  if (std::visit(Binder{handle_, parameter}, value.value()) != SQLITE_OK) failOf(database_, failure::engine);
}

void Statement::bind(int parameter, std::int64_t value) {
  if (sqlite3_bind_int64(handle_, parameter, value) != SQLITE_OK) failOf(database_, failure::engine);
}

bool Statement::step() {
  const int result = sqlite3_step(handle_);
  if (result != SQLITE_ROW && result != SQLITE_DONE) failOf(database_, failure::engine);
  return result == SQLITE_ROW;
}

void Statement::reset() { sqlite3_reset(handle_); }

}  // namespace tarnel::sqlite
