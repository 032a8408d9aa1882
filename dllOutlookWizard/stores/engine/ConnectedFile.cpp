#include "ConnectedFile.h"

#include <sqlite3.h>

#include "Connection.h"

namespace tarnel::sqlite {

ConnectedFile::Log ConnectedFile::log() const {
  return {FileIdentity::of(path_.string() + "-wal"), FileIdentity::of(path_.string() + "-shm")};
}

bool ConnectedFile::emptyLog(Connection& connection) {
  // The log beside another file is none of ours.
  if (disturbed_ || !isInReach()) return false;
  if (FileState::of(path_.string() + "-wal").size == 0) return true;
  sqlite3* const database = connection.handle();
  sqlite3_busy_timeout(database, 0);
  const int result = sqlite3_wal_checkpoint_v2(database, nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
  sqlite3_busy_timeout(database, connection.busyMilliseconds());
  return result == SQLITE_OK;
}

bool ConnectedFile::rest(Connection& connection) {
  if (FileState::of(path_) != state_ || !emptyLog(connection)) return false;
  state_ = FileState::of(path_);
  log_ = log();
  return true;
}

bool ConnectedFile::wake(Connection& connection) {
  disturbed_ = FileState::of(path_) != state_ || log() != log_;
  // A log that was put there meanwhile is for whoever opens the file again.
  if (disturbed_) sqlite3_db_config(connection.handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
  return !disturbed_;
}

}  // namespace tarnel::sqlite
