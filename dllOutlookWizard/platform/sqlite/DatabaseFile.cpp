#include "DatabaseFile.h"

#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

#include "Failure.h"

namespace tarnel::sqlite {
namespace {

namespace fs = std::filesystem;

// Layout of the file's header, from the engine's file format.
constexpr std::size_t headerSize = 100;
constexpr std::size_t pageSizeAt = 16;
constexpr std::size_t changeCounterAt = 24;
constexpr std::size_t pageCountAt = 28;
constexpr std::size_t countValidForAt = 92;
constexpr std::string_view signature{"SQLite format 3\0", 16};
constexpr std::size_t jetSignatureAt = 4;
constexpr std::string_view jetSignatures[]{"Standard Jet DB", "Standard ACE DB"};

using Header = std::array<char, headerSize>;

[[noreturn]] void fail(const fs::path& path, const std::string& reasonAndAdvice) {
  throw Failure(failure::engine, "The database \"" + path.string() + "\" " + reasonAndAdvice);
}

std::uint32_t bigEndian(const Header& header, std::size_t at, std::size_t bytes) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < bytes; ++i) value = value << 8 | static_cast<std::uint8_t>(header[at + i]);
  return value;
}

void checkAccess(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) fail(path, "does not exist. Check the path, or create the database first.");
  if (!fs::is_regular_file(status)) fail(path, "is not a file. Name the database file itself.");
  if (access(path.c_str(), R_OK) != 0) fail(path, "can't be read. Allow this user to read and write it.");
  // Who may write everything still leaves alone what is marked read-only.
  constexpr fs::perms anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if ((status.permissions() & anyWrite) == fs::perms::none || access(path.c_str(), W_OK) != 0)
    fail(path, "is read-only. Allow this user to write to the file and to its folder.");
}

// Until the log was copied back the file may rightly be shorter than its header says.
bool hasPendingLog(const fs::path& path) {
  std::error_code error;
  const auto size = fs::file_size(path.string() + "-wal", error);
  return !error && size > 0;
}

void checkLength(const fs::path& path, const Header& header) {
  const std::uint32_t stored = bigEndian(header, pageSizeAt, 2);
  const std::uintmax_t pageSize = stored == 1 ? 65536 : stored;
  const std::uintmax_t pages = bigEndian(header, pageCountAt, 4);
  const bool countIsValid = bigEndian(header, changeCounterAt, 4) == bigEndian(header, countValidForAt, 4);
  if (countIsValid && !hasPendingLog(path) && fs::file_size(path) < pageSize * pages)
    fail(path, "is damaged: it is shorter than it should be. Restore it from a backup.");
}

// Read through the engine: closing a file of one's own would take away every lock that this process has on it.
std::size_t readHeader(const fs::path& path, Header& header) {
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READONLY | SQLITE_OPEN_PRIVATECACHE, nullptr);
  const std::unique_ptr<sqlite3, int (*)(sqlite3*)> database(opened, sqlite3_close);
  sqlite3_file* file = nullptr;
  if (result == SQLITE_OK) sqlite3_file_control(opened, "main", SQLITE_FCNTL_FILE_POINTER, &file);
  // The access was checked before, so that this is no matter of rights.
  if (!file || !file->pMethods)
    fail(path, "can't be opened: " + std::generic_category().message(opened ? sqlite3_system_errno(opened) : ENOMEM) +
                   ". Close other programs and try again.");
  sqlite3_int64 size = 0;
  file->pMethods->xFileSize(file, &size);
  const auto length = static_cast<std::size_t>(std::min<sqlite3_int64>(size, headerSize));
  file->pMethods->xRead(file, header.data(), static_cast<int>(length), 0);
  return length;
}

}  // namespace

void checkDatabaseFile(const fs::path& path) {
  checkAccess(path);
  Header header{};
  const std::string_view read(header.data(), readHeader(path, header));
  for (const std::string_view jet : jetSignatures)
    if (read.substr(std::min(read.size(), jetSignatureAt)).starts_with(jet))
      fail(path, "is a Microsoft Jet file, which this program can't read. Convert it, or create a new database.");
  if (!read.starts_with(signature))
    fail(path, "is not a task database. Name another file; this one was left as it is.");
  if (read.size() < headerSize) fail(path, "is damaged: it is shorter than it should be. Restore it from a backup.");
  checkLength(path, header);
}

}  // namespace tarnel::sqlite
