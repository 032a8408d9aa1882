#include "Statement.h"

#include <sqlite3.h>

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

Statement::Statement(Database& database, std::string_view sql, Use use)
    : database_(database), use_(use), prepared_(database.statements().take(database.handle(), sql)) {
  if (!prepared_) failOf(database.handle(), failure::badStatement);
  handle_ = prepared_.handle();
}

Statement::~Statement() {
  if (use_ == Use::again) database_.statements().giveBack(std::move(prepared_));
}

void Statement::bind(int parameter, const Variant& value) {
  if (std::visit(Binder{handle_, parameter}, value.value()) != SQLITE_OK) failOf(database_.handle(), failure::engine);
}

void Statement::bind(int parameter, std::int64_t value) {
  if (sqlite3_bind_int64(handle_, parameter, value) != SQLITE_OK) failOf(database_.handle(), failure::engine);
}

bool Statement::step() {
  const int result = sqlite3_step(handle_);
  if (result != SQLITE_ROW && result != SQLITE_DONE) failOf(database_.handle(), failure::engine);
  return result == SQLITE_ROW;
}

}  // namespace tarnel::sqlite
