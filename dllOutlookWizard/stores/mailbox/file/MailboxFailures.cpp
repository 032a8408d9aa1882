#include "MailboxFailures.h"

#include <sqlite3.h>

#include "Failure.h"
#include "Schema.h"

namespace tarnel::mailbox {
namespace {

constexpr const char* source = "Tarnel.Mailbox";

[[noreturn]] void failDamaged(const std::filesystem::path& path, int code) {
  failMailbox(path, std::string("the file is damaged (") + sqlite3_errstr(code) + ")", "Restore it from a copy.");
}

}  // namespace

void failMailbox(const std::filesystem::path& path, const std::string& problem, const std::string& advice) {
  throw Failure(failure::automation, "The mailbox \"" + path.string() + "\" can't be used: " + problem + ". " + advice,
                source);
}

void failCreation(const std::filesystem::path& path, const std::string& reason) {
  throw Failure(failure::automation, "The mailbox \"" + path.string() + "\" can't be created: " + reason, source);
}

void failDisk(const std::filesystem::path& path, const std::string& told) {
  failMailbox(path, "the disk refuses (" + told + ")", "Make room on the disk, or check it.");
}

void failNewerVersion(const std::filesystem::path& path, std::int64_t version) {
  failMailbox(path,
              "it has version " + std::to_string(version) + ", and this program knows versions up to " +
                  std::to_string(schema::version),
              "Use a newer Tarnel.");
}

void failOutOfReach(const std::filesystem::path& path) {
  failMailbox(path, "the file was removed or replaced while it was open", "Put it back and try again.");
}

void failDamaged(const std::filesystem::path& path) { failDamaged(path, SQLITE_CORRUPT); }

void failRefused(const std::filesystem::path& path, const sqlite::Refusal& refusal) {
  switch (refusal.code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      failMailbox(path, "another program has locked it", "Close that program and try again.");
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      failDamaged(path, refusal.code);
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
      failMailbox(path, "it can't be written (" + refusal.told + ")", "Make the file and its folder writable.");
    case SQLITE_FULL:
    case SQLITE_IOERR:
      failDisk(path, refusal.told);
    default:
      // A table or a column that the layout promises isn't there.
      failMailbox(path, "its contents are not those of a mailbox (" + refusal.told + ")", "Restore it from a copy.");
  }
}

}  // namespace tarnel::mailbox
