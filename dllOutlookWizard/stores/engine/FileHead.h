#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace tarnel::sqlite {

// The first bytes of a file that may be an SQLite database, read without touching it, and what they say.
class FileHead {
 public:
  static constexpr std::size_t size = 100;

  explicit FileHead(const std::filesystem::path& path);

  // Why nothing was read: the system's error number for a file that can't be opened, else the engine's result code for
  // one that the disk doesn't give; 0 for none.
  int openError() const { return openError_; }
  int readError() const { return readError_; }

  // Fewer than `size` when the file is shorter.
  std::string_view bytes() const { return bytes_; }
  bool isDatabase() const;
  std::uint32_t number(std::size_t at, std::size_t width = 4) const;
  // Whether the file is shorter than it should be. With a write-ahead log beside it it may rightly lack pages that the
  // log still holds.
  bool isCutShort() const;
  // Whether the file is there under other names, too (hard links). Each name has a log of its own, and two programs
  // that open the file by two names lose each other's writes.
  bool hasOtherNames() const;

 private:
  std::filesystem::path path_;
  std::string bytes_;
  std::uint64_t fileSize_ = 0;
  int openError_ = 0;
  int readError_ = 0;
};

}  // namespace tarnel::sqlite
