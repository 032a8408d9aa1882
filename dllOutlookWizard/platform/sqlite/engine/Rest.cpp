#include "Rest.h"

#include <sqlite3.h>

namespace tarnel::sqlite {

Rest::Files Rest::files() const {
  return {FileState::of(path_), FileIdentity::of(path_.string() + "-wal"), FileIdentity::of(path_.string() + "-shm")};
}

bool Rest::begin(sqlite3* database, int busyMilliseconds) {
  if (FileState::of(path_.string() + "-wal").size > 0) {
    sqlite3_busy_timeout(database, 0);
    const int result = sqlite3_wal_checkpoint_v2(database, nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
    sqlite3_busy_timeout(database, busyMilliseconds);
    if (result != SQLITE_OK) return false;
  }
  files_ = files();
  return true;
}

}  // namespace tarnel::sqlite
