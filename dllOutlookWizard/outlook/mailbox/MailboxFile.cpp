#include "MailboxFile.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <memory>
#include <system_error>

#include "Failure.h"
#include "Schema.h"

namespace tarnel::mailbox {
namespace {

// The head of an SQLite file: offsets of its big-endian numbers.
constexpr std::size_t headSize = 100;
constexpr std::size_t pageSizeAt = 16;
constexpr std::size_t changeCounterAt = 24;
constexpr std::size_t pageCountAt = 28;
constexpr std::size_t userVersionAt = 60;
constexpr std::size_t applicationIdAt = 68;
constexpr std::size_t versionValidForAt = 92;
constexpr std::string_view magic{"SQLite format 3\0", 16};

using Head = std::array<unsigned char, headSize>;

std::uint32_t number(const Head& head, std::size_t at, std::size_t bytes = 4) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < bytes; ++i) value = value << 8 | head[at + i];
  return value;
}

// A file without any write bit counts as protected for everyone, also for those who could overrule it.
bool writeProtected(const std::filesystem::path& path, const struct stat& found) {
  return (found.st_mode & 0222) == 0 || access(path.c_str(), W_OK) != 0;
}

bool hasLog(const std::filesystem::path& path) {
  std::error_code none;
  const auto size = std::filesystem::file_size(path.string() + "-wal", none);
  return !none && size > 0;
}

// Read through the engine: closing a file of one's own would take away every lock that this process has on it.
std::size_t readHead(const std::filesystem::path& path, Head& head) {
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READONLY | SQLITE_OPEN_PRIVATECACHE, nullptr);
  const std::unique_ptr<sqlite3, int (*)(sqlite3*)> database(opened, sqlite3_close);
  sqlite3_file* file = nullptr;
  if (result == SQLITE_OK) sqlite3_file_control(opened, "main", SQLITE_FCNTL_FILE_POINTER, &file);
  if (!file || !file->pMethods)
    failMailbox(path,
                std::string("it can't be read (") + std::strerror(opened ? sqlite3_system_errno(opened) : ENOMEM) + ")",
                "Give yourself the right to read it, close other programs, or choose another mailbox.");
  sqlite3_int64 size = 0;
  file->pMethods->xFileSize(file, &size);
  const auto length = static_cast<std::size_t>(std::min<sqlite3_int64>(size, headSize));
  file->pMethods->xRead(file, head.data(), static_cast<int>(length), 0);
  return length;
}

Head soundHead(const std::filesystem::path& path) {
  Head head{};
  if (readHead(path, head) < headSize || std::memcmp(head.data(), magic.data(), magic.size()) != 0 ||
      number(head, applicationIdAt) != schema::applicationId)
    failMailbox(path, "the file is no mailbox", "Choose a mailbox that Tarnel made, or create a new one.");
  return head;
}

void requireWhole(const std::filesystem::path& path, const Head& head) {
  const std::uint32_t stored = number(head, pageSizeAt, 2);
  const std::uint64_t pageSize = stored == 1 ? 65536 : stored;
  const bool countIsValid = number(head, changeCounterAt) == number(head, versionValidForAt);
  const std::uint64_t expected = countIsValid ? number(head, pageCountAt) * pageSize : pageSize;
  // With a write-ahead log beside it the file may rightly lack pages that the log still holds.
  if (std::filesystem::file_size(path) < expected && !hasLog(path))
    failMailbox(path, "the file is cut short", "Restore it from a copy.");
}

[[noreturn]] void failCreation(const std::filesystem::path& path, const std::string& reason) {
  throw Failure(failure::automation, "The mailbox \"" + path.string() + "\" can't be created: " + reason,
                "Tarnel.Mailbox");
}

// Removes the half-made file whatever happens.
struct Leftover {
  std::filesystem::path path;
  ~Leftover() {
    for (const char* suffix : {"", "-wal", "-shm", "-journal"}) unlink((path.string() + suffix).c_str());
  }
};

void layOut(const std::filesystem::path& target, const std::filesystem::path& file) {
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2(file.c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  const std::unique_ptr<sqlite3, int (*)(sqlite3*)> database(opened, sqlite3_close);
  const std::string script = "PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL; BEGIN;" +
                             std::string(schema::creation()) +
                             "PRAGMA application_id = " + std::to_string(schema::applicationId) +
                             "; PRAGMA user_version = " + std::to_string(schema::version) + "; COMMIT;";
  if (result != SQLITE_OK || sqlite3_exec(opened, script.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
    failCreation(target, opened ? sqlite3_errmsg(opened) : "out of memory");
}

}  // namespace

void failMailbox(const std::filesystem::path& path, const std::string& problem, const std::string& advice) {
  throw Failure(failure::automation, "The mailbox \"" + path.string() + "\" can't be used: " + problem + ". " + advice,
                "Tarnel.Mailbox");
}

void failNewerVersion(const std::filesystem::path& path, std::int64_t version) {
  failMailbox(path,
              "it has version " + std::to_string(version) + ", and this program knows versions up to " +
                  std::to_string(schema::version),
              "Use a newer Tarnel.");
}

std::filesystem::path folderOf(const std::filesystem::path& path) {
  return path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
}

void failOutOfReach(const std::filesystem::path& path) {
  failMailbox(path, "the file was removed or replaced while it was open", "Put it back and try again.");
}

FileIdentity FileIdentity::of(const std::filesystem::path& path) {
  struct stat found {};
  if (stat(path.c_str(), &found) != 0) return {};
  return {found.st_dev, found.st_ino};
}

void requireWritable(const std::filesystem::path& path, const std::filesystem::path& folder,
                     const FileIdentity& opened) {
  struct stat found {};
  if (stat(path.c_str(), &found) != 0 || FileIdentity{found.st_dev, found.st_ino} != opened) failOutOfReach(path);
  if (writeProtected(path, found)) failMailbox(path, "the file is write-protected", "Make it writable.");
  if (stat(folder.c_str(), &found) == 0 && writeProtected(folder, found))
    failMailbox(path, "its folder is write-protected",
                "Make the folder writable, or put the mailbox into another one.");
}

void inspectMailbox(const std::filesystem::path& path) {
  std::error_code none;
  if (!std::filesystem::exists(path, none))
    failMailbox(path, "there is no such file", "Create it first, or name another mailbox.");
  if (!std::filesystem::is_regular_file(path, none)) failMailbox(path, "it is no file", "Name a mailbox file.");
  const Head head = soundHead(path);
  if (number(head, userVersionAt) > schema::version) failNewerVersion(path, number(head, userVersionAt));
  requireWhole(path, head);
  requireWritable(path, folderOf(path), FileIdentity::of(path));
}

void createMailbox(const std::filesystem::path& path) {
  std::string name = (folderOf(path) / ".tarnel-mailbox-XXXXXX").string();
  const int made = mkstemp(name.data());
  if (made < 0) failCreation(path, std::string("its folder doesn't take files (") + std::strerror(errno) + ").");
  close(made);
  const Leftover leftover{name};
  layOut(path, name);
  // A link fails where a rename would overwrite.
  if (link(name.c_str(), path.c_str()) != 0)
    failCreation(path, errno == EEXIST ? "a file of that name exists already. Choose another name."
                                       : std::string(std::strerror(errno)) + ".");
}

void makeSureOfMailbox(const std::filesystem::path& path) {
  std::error_code error;
  std::filesystem::create_directories(folderOf(path), error);
  if (error) failCreation(path, "its folder can't be made (" + error.message() + ").");
  if (!std::filesystem::exists(std::filesystem::symlink_status(path))) createMailbox(path);
}

}  // namespace tarnel::mailbox
