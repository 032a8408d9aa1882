#pragma once

#include <filesystem>

#include "FileIdentity.h"

namespace tarnel::sqlite {

class Connection;

// The file that a connection has open: whether the path still leads to it, and whether the connection may rest between
// two uses. While it rests the file alone holds all that was written, so that it may be copied, moved or replaced, and
// the next use finds out. To put it back from a copy in place is safe, too, unless another program opens it before the
// next use: that one would trust the resting connection's index of the log. A restoration of the same length within the
// file system's tick of time goes unnoticed.
class ConnectedFile {
 public:
  // To be made before the file is opened.
  explicit ConnectedFile(const std::filesystem::path& path) : path_(path), state_(FileState::of(path)) {}

  const std::filesystem::path& path() const { return path_; }
  const FileIdentity& identity() const { return state_.identity; }
  bool isInReach() const { return FileIdentity::of(path_) == identity(); }

  // Brings all that the log holds into the file itself. Readers aren't waited for, whatever busy timeout the connection
  // has. False when that can't be done now, or the path leads elsewhere.
  bool emptyLog(Connection& connection);
  // The end of a use. False when the connection can't rest, because the log isn't empty, or the file was replaced or
  // written to past the log since it was opened or woken.
  bool rest(Connection& connection);
  // The next use. False when somebody touched the file or took its log away: the connection is of no use any more, and
  // its end leaves all files as they are.
  bool wake(Connection& connection);

 private:
  struct Log {
    FileIdentity file;
    FileIdentity index;
    friend bool operator==(const Log&, const Log&) = default;
  };
  Log log() const;

  std::filesystem::path path_;
  FileState state_;  // as opened, rested or woken
  Log log_;          // as rested
  bool disturbed_ = false;
};

}  // namespace tarnel::sqlite
