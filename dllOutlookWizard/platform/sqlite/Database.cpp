#include "Database.h"

#include <sqlite3.h>

#include "Failure.h"
#include "Statement.h"

namespace tarnel::sqlite {
namespace {

std::string fileNameOf(sqlite3* database) {
  const char* name = sqlite3_db_filename(database, "main");
  return name ? name : "";
}

}  // namespace

std::string adviceFor(int code) {
  switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return " Another program is writing to it; try again when it has finished.";
    case SQLITE_CANTOPEN:
      return " Allow this user to write to the file and to its folder, and close programs that hold many files open.";
    case SQLITE_READONLY:
    case SQLITE_PERM:
      return " Allow this user to write to the file and to its folder.";
    case SQLITE_FULL:
    case SQLITE_IOERR:
      return " Free some disk space, make sure that the disk works, and try again.";
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return " The file is damaged or no task database; restore it from a backup.";
    default:
      return {};
  }
}

void failOf(sqlite3* database, std::int32_t number) {
  const int code = sqlite3_extended_errcode(database);
  const std::string text = sqlite3_errmsg(database);
  const std::string advice = adviceFor(code);
  if (advice.empty()) throw Failure(number, text);
  throw Failure(failure::engine, "Database \"" + fileNameOf(database) + "\": " + text + "." + advice);
}

void Database::Closer::operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }

Database::Database(const std::filesystem::path& path, Opening opening) {
  // One thread uses a database at a time; the engine's own lock around each value would be a third of a reading's cost.
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_PRIVATECACHE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE |
                    (opening == Opening::orNew ? SQLITE_OPEN_CREATE : 0);
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2(path.c_str(), &opened, flags, nullptr);
  handle_.reset(opened);
  if (result != SQLITE_OK)
    throw Failure(failure::engine,
                  "Database \"" + path.string() + "\": " + sqlite3_errstr(result) + "." + adviceFor(result));
  sqlite3_busy_timeout(opened, busyMilliseconds);
  sqlite3_db_config(opened, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  // Room enough, in KiB, that a list of ten thousand tasks is sorted without a temporary file. More would slow longer
  // lists down: fresh memory costs more than the reading of pages that the system holds anyway.
  // And a short log, in pages: a disk is done sooner with what overwrites the log's beginning than with what makes the
  // file longer, and every single write is waited for.
  run("PRAGMA synchronous = FULL; PRAGMA cache_size = -8192; PRAGMA wal_autocheckpoint = 200");
}

void Database::run(const std::string& script) {
  if (sqlite3_exec(handle(), script.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
    failOf(handle(), failure::badStatement);
}

void Database::useWriteAheadLog() { run("PRAGMA journal_mode = WAL"); }

Transaction::Transaction(Database& database) : database_(database) {
  Statement(database_, "BEGIN IMMEDIATE", Statement::Use::again).step();
}

Transaction::~Transaction() {
  // Some failures have rolled it back already; then there is nothing to do.
  if (open_) sqlite3_exec(database_.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit() {
  Statement(database_, "COMMIT", Statement::Use::again).step();
  open_ = false;
}

}  // namespace tarnel::sqlite
