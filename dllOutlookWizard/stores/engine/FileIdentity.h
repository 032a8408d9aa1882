#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>

namespace tarnel::sqlite {

// Which file a path led to, to notice when it leads to another one or to none.
struct FileIdentity {
  dev_t device = 0;
  ino_t inode = 0;

  // All zero when there is no file.
  static FileIdentity of(const std::filesystem::path& path);
  friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

// A file's state as the system tells it, to notice when somebody replaced it or wrote to it.
struct FileState {
  FileIdentity identity;
  std::int64_t size = 0;
  // Nanoseconds since 1970: of the last change of its contents, and of its owner, rights or names.
  std::int64_t written = 0;
  std::int64_t changed = 0;

  // All zero when there is no file.
  static FileState of(const std::filesystem::path& path);
  friend bool operator==(const FileState&, const FileState&) = default;
};

}  // namespace tarnel::sqlite
