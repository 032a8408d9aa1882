#include "Connection.h"

#include <sqlite3.h>

#include <cstdlib>

namespace tarnel::sqlite {

void Connection::Closer::operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }

Connection::Connection(const std::filesystem::path& path, Opening opening, int busyMilliseconds, Fail fail)
    : fail_(std::move(fail)), busyMilliseconds_(busyMilliseconds) {
  // One thread uses a connection at a time; the engine's own lock around each value would be a third of a reading's
  // cost.
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_PRIVATECACHE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE |
                    (opening == Opening::orNew ? SQLITE_OPEN_CREATE : 0);
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2(path.c_str(), &opened, flags, nullptr);
  handle_.reset(opened);
  if (result != SQLITE_OK)
    raise({Refusal::Stage::opening, result, opened ? sqlite3_errmsg(opened) : sqlite3_errstr(result), path.string()});
  sqlite3_busy_timeout(opened, busyMilliseconds);
}

void Connection::run(const std::string& script) {
  if (sqlite3_exec(handle(), script.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) fail(Refusal::Stage::preparing);
}

std::int64_t Connection::lastInsertId() const { return sqlite3_last_insert_rowid(handle()); }

std::int64_t Connection::changedRows() const { return sqlite3_changes64(handle()); }

void Connection::fail(Refusal::Stage stage) const {
  const char* file = sqlite3_db_filename(handle(), "main");
  raise({stage, sqlite3_extended_errcode(handle()), sqlite3_errmsg(handle()), file ? file : ""});
}

void Connection::raise(const Refusal& refusal) const {
  fail_(refusal);
  std::abort();  // a store that goes on after a refusal would lose data
}

}  // namespace tarnel::sqlite
