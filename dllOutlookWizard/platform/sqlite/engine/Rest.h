#pragma once

#include <filesystem>

#include "FileIdentity.h"

struct sqlite3;

namespace tarnel::sqlite {

// The time between two uses of a connection that stays open. Meanwhile the file may be copied, moved, replaced or put
// back from a copy as if nobody had it open.
class Rest {
 public:
  explicit Rest(const std::filesystem::path& path) : path_(path) {}

  // Brings all that the log holds into the file itself. False when that can't be done now; readers aren't waited for,
  // whatever busy timeout the connection has, which is set to `busyMilliseconds` behind it.
  bool begin(sqlite3* database, int busyMilliseconds);
  // False when somebody touched the file, or took its log away, since the rest began: a new connection is due then.
  bool isUndisturbed() const { return files() == files_; }

 private:
  struct Files {
    FileState database;
    FileIdentity log;
    FileIdentity logIndex;
    friend bool operator==(const Files&, const Files&) = default;
  };
  Files files() const;

  std::filesystem::path path_;
  Files files_;
};

}  // namespace tarnel::sqlite
