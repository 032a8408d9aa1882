#include "DatabaseFile.h"

#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <system_error>

#include "Database.h"
#include "Failure.h"
#include "FileHead.h"

namespace tarnel::sqlite {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t jetSignatureAt = 4;
constexpr std::string_view jetSignatures[]{"Standard Jet DB", "Standard ACE DB"};

[[noreturn]] void fail(const fs::path& path, const std::string& reasonAndAdvice) {
  throw Failure(failure::engine, "The database \"" + path.string() + "\" " + reasonAndAdvice);
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

}  // namespace

void checkDatabaseFile(const fs::path& path) {
  checkAccess(path);
  const FileHead head(path);
  // The access was checked before, so that this is no matter of rights.
  if (head.openError() != 0)
    fail(path, "can't be opened: " + std::generic_category().message(head.openError()) +
                   ". Close other programs and try again.");
  if (head.readError() != 0)
    fail(path, std::string("can't be read: ") + sqlite3_errstr(head.readError()) + "." + adviceFor(head.readError()));
  const std::string_view behindPrefix = head.bytes().substr(std::min(head.bytes().size(), jetSignatureAt));
  for (const std::string_view jet : jetSignatures)
    if (behindPrefix.starts_with(jet))
      fail(path, "is a Microsoft Jet file, which this program can't read. Convert it, or create a new database.");
  if (!head.isDatabase()) fail(path, "is not a task database. Name another file; this one was left as it is.");
  if (head.hasOtherNames())
    fail(path,
         "has several names (hard links), and programs that open it by different ones lose each other's writes. Remove "
         "the other names, or open a copy.");
  if (head.isCutShort()) fail(path, "is damaged: it is shorter than it should be. Restore it from a backup.");
}

}  // namespace tarnel::sqlite
