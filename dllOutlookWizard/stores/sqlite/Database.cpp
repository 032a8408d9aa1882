#include "Database.h"

#include <sqlite3.h>

#include "Failure.h"

namespace tarnel::sqlite {
namespace {

// How long others' locks are waited for, in milliseconds.
constexpr int lockWait = 5000;

[[noreturn]] void failOf(const Refusal& refusal) {
  using enum Refusal::Stage;
  const std::string advice = adviceFor(refusal.code);
  if (refusal.stage != opening && advice.empty())
    throw Failure(refusal.stage == preparing ? failure::badStatement : failure::engine, refusal.told);
  const std::string reason = refusal.stage == opening ? sqlite3_errstr(refusal.code) : refusal.told;
  throw Failure(failure::engine, "Database \"" + refusal.file + "\": " + reason + "." + advice);
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

Database::Database(const std::filesystem::path& path, Opening opening) : Connection(path, opening, lockWait, failOf) {
  sqlite3_db_config(handle(), SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  // Room enough, in KiB, that a list of ten thousand tasks is sorted without a temporary file. More would slow longer
  // lists down: fresh memory costs more than the reading of pages that the system holds anyway.
  // And a short log, in pages: a disk is done sooner with what overwrites the log's beginning than with what makes the
  // file longer, and every single write is waited for.
  run("PRAGMA synchronous = FULL; PRAGMA cache_size = -8192; PRAGMA wal_autocheckpoint = 200");
}

void Database::useWriteAheadLog() { run("PRAGMA journal_mode = WAL"); }

}  // namespace tarnel::sqlite
