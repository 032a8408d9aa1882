#include "FileHead.h"

#include <sqlite3.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <system_error>

namespace tarnel::sqlite {
namespace {

// Offsets of big-endian numbers, from the engine's file format.
constexpr std::size_t pageSizeAt = 16;
constexpr std::size_t changeCounterAt = 24;
constexpr std::size_t pageCountAt = 28;
constexpr std::size_t countValidForAt = 92;
constexpr std::string_view signature{"SQLite format 3\0", 16};

bool hasLog(const std::filesystem::path& path) {
  std::error_code error;
  const auto size = std::filesystem::file_size(path.string() + "-wal", error);
  return !error && size > 0;
}

}  // namespace

// Read through the engine: closing a file of one's own would take away every lock that this process has on it.
FileHead::FileHead(const std::filesystem::path& path) : path_(path) {
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READONLY | SQLITE_OPEN_PRIVATECACHE, nullptr);
  const std::unique_ptr<sqlite3, int (*)(sqlite3*)> database(opened, sqlite3_close);
  sqlite3_file* file = nullptr;
  if (result == SQLITE_OK) sqlite3_file_control(opened, "main", SQLITE_FCNTL_FILE_POINTER, &file);
  if (!file || !file->pMethods) {
    const int error = opened ? sqlite3_system_errno(opened) : ENOMEM;
    openError_ = error != 0 ? error : EIO;
    return;
  }
  sqlite3_int64 length = 0;
  readError_ = file->pMethods->xFileSize(file, &length);
  if (readError_ != SQLITE_OK) return;
  fileSize_ = static_cast<std::uint64_t>(length);
  bytes_.resize(std::min<std::uint64_t>(fileSize_, size));
  if (!bytes_.empty()) readError_ = file->pMethods->xRead(file, bytes_.data(), static_cast<int>(bytes_.size()), 0);
}

bool FileHead::isDatabase() const { return bytes().starts_with(signature); }

std::uint32_t FileHead::number(std::size_t at, std::size_t width) const {
  std::uint32_t value = 0;
  for (const char byte : bytes().substr(at, width)) value = value << 8 | static_cast<unsigned char>(byte);
  return value;
}

bool FileHead::hasOtherNames() const {
  std::error_code none;
  const auto names = std::filesystem::hard_link_count(path_, none);
  return !none && names > 1;
}

bool FileHead::isCutShort() const {
  if (bytes_.size() < size) return true;
  const std::uint32_t stored = number(pageSizeAt, 2);
  const std::uint64_t pageSize = stored == 1 ? 65536 : stored;
  const bool countIsValid = number(changeCounterAt) == number(countValidForAt);
  return fileSize_ < (countIsValid ? number(pageCountAt) * pageSize : pageSize) && !hasLog(path_);
}

}  // namespace tarnel::sqlite
