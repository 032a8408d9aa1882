#pragma once

#include <sys/types.h>

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

}  // namespace tarnel::sqlite
