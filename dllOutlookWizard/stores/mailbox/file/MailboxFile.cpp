#include "MailboxFile.h"

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <system_error>

#include "Connection.h"
#include "FileHead.h"
#include "Leftovers.h"
#include "MailboxFailures.h"
#include "Schema.h"

namespace tarnel::mailbox {
namespace {

// Offsets in the head of an SQLite file.
constexpr std::size_t userVersionAt = 60;
constexpr std::size_t applicationIdAt = 68;

// A file without any write bit counts as protected for everyone, also for those who could write to it all the same.
bool isWriteProtected(const std::filesystem::path& path) {
  struct stat found {};
  return stat(path.c_str(), &found) == 0 && ((found.st_mode & 0222) == 0 || access(path.c_str(), W_OK) != 0);
}

void requireSoundHead(const std::filesystem::path& path, const sqlite::FileHead& head) {
  if (head.openError() != 0)
    failMailbox(path, std::string("it can't be read (") + std::strerror(head.openError()) + ")",
                "Give yourself the right to read it, close other programs, or choose another mailbox.");
  if (head.readError() != 0) failDisk(path, sqlite3_errstr(head.readError()));
  if (!head.isDatabase() || head.number(applicationIdAt) != schema::applicationId)
    failMailbox(path, "the file is no mailbox", "Choose a mailbox that Tarnel made, or create a new one.");
  if (head.number(userVersionAt) > schema::version) failNewerVersion(path, head.number(userVersionAt));
  if (head.hasOtherNames())
    failMailbox(path, "the file has several names (hard links), by which programs lose each other's writes",
                "Remove the other names, or choose a copy.");
  if (head.isCutShort()) failMailbox(path, "the file is cut short", "Restore it from a copy.");
}

// Removes the half-made file whatever happens.
struct Leftover {
  std::filesystem::path path;
  ~Leftover() { sqlite::removeDatabase(path); }
};

void layOut(const std::filesystem::path& target, const std::filesystem::path& file) {
  const auto fail = [&](const sqlite::Refusal& refusal) { failCreation(target, refusal.told); };
  sqlite::Connection database(file, sqlite::Connection::Opening::orNew, 0, fail);
  database.run("PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL; BEGIN;" + schema::creation() +
               "PRAGMA application_id = " + std::to_string(schema::applicationId) +
               "; PRAGMA user_version = " + std::to_string(schema::version) + "; COMMIT;");
}

}  // namespace

std::filesystem::path folderOf(const std::filesystem::path& path) {
  return path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
}

void requireWritableFile(const std::filesystem::path& path) {
  if (isWriteProtected(path)) failMailbox(path, "the file is write-protected", "Make it writable.");
}

void requireWritableFolder(const std::filesystem::path& path, const std::filesystem::path& folder) {
  if (isWriteProtected(folder))
    failMailbox(path, "its folder is write-protected",
                "Make the folder writable, or put the mailbox into another one.");
}

void inspectMailbox(const std::filesystem::path& path) {
  std::error_code none;
  if (!std::filesystem::exists(path, none))
    failMailbox(path, "there is no such file", "Create it first, or name another mailbox.");
  if (!std::filesystem::is_regular_file(path, none)) failMailbox(path, "it is no file", "Name a mailbox file.");
  requireSoundHead(path, sqlite::FileHead(path));
  requireWritableFile(path);
  requireWritableFolder(path, folderOf(path));
}

void createMailbox(const std::filesystem::path& path) {
  if (const std::filesystem::path leftover = sqlite::clearPlaceOf(path); !leftover.empty())
    failCreation(path, "\"" + leftover.string() +
                           "\" holds the last changes of a mailbox that was here before. Put that mailbox back, or "
                           "remove this file with it.");
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
