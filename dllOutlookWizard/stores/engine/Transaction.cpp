#include "Transaction.h"

#include <sqlite3.h>

#include "Connection.h"
#include "Statement.h"

namespace tarnel::sqlite {

Transaction::Transaction(Connection& connection, Kind kind) : connection_(connection) {
  Statement(connection_, kind == Kind::writing ? "BEGIN IMMEDIATE" : "BEGIN").run();
}

Transaction::~Transaction() {
  // Some failures have rolled it back already; then the engine refuses, and there is nothing to do.
  if (open_) sqlite3_exec(connection_.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit() {
  Statement(connection_, "COMMIT").run();
  open_ = false;
}

}  // namespace tarnel::sqlite
