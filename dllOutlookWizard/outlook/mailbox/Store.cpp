#include "Store.h"

#include <sqlite3.h>

#include "Failure.h"
#include "Schema.h"

namespace tarnel::mailbox {
namespace {

// How long a write of another program is waited for before the mailbox counts as locked.
constexpr int busyMilliseconds = 1000;

}  // namespace

Store::Store(const std::filesystem::path& path)
    : file_(path), folder_(folderOf(path)), database_(nullptr, sqlite3_close) {
  inspectMailbox(path);
  open();
  requireSoundness();
}

Store::~Store() { file_.emptyLog(database_.get(), busyMilliseconds); }

void Store::open() {
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2(path().c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  database_.reset(opened);
  if (result != SQLITE_OK) fail(result);
  sqlite3_extended_result_codes(opened, 1);
  sqlite3_busy_timeout(opened, busyMilliseconds);
}

void Store::requireSoundness() {
  {
    // The first statement that touches the file: a lock or damage shows here.
    StoreStatement version = prepare("PRAGMA user_version");
    version.step();
    if (version.number(0) > schema::version) failNewerVersion(path(), version.number(0));
  }
  // The log grows to 8 MB before it is brought into the file, which costs a wait for the disk.
  execute(
      "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL; PRAGMA foreign_keys = ON; "
      "PRAGMA temp_store = MEMORY; PRAGMA wal_autocheckpoint = 2048;");
  {
    StoreStatement id = prepare("SELECT id FROM store");
    StoreStatement folders = prepare("SELECT id, name FROM folders");
    while (folders.step()) folders_.emplace(folders.number(0), folders.text(1));
    if (!id.step() || folders_.size() != 3) fail(SQLITE_CORRUPT);
    id_ = id.text(0);
  }
  refreshGeneration();
}

bool Store::rest() { return file_.rest(database_.get(), busyMilliseconds); }

bool Store::wake() {
  if (!file_.wake(database_.get())) return false;
  requireWritableFolder(path(), folder_);
  requireWritable();
  refreshGeneration();
  return true;
}

void Store::requireWritable() {
  const sqlite::FileState state = sqlite::FileState::of(path());
  if (state.identity != file_.identity()) failOutOfReach(path());
  // Rights can't change without the file's time of change.
  if (state.changed == writable_) return;
  requireWritableFile(path());
  writable_ = state.changed;
}

void Store::requireReach() const {
  if (!isInReach()) failOutOfReach(path());
}

StoreStatement Store::prepare(std::string_view sql) {
  auto prepared = statements_.take(database_.get(), sql);
  if (!prepared) fail(sqlite3_extended_errcode(database_.get()));
  return {*this, std::move(prepared)};
}

void Store::write(const std::function<void()>& work) {
  if (inTransaction_) return work();
  requireWritable();
  inTransaction("BEGIN IMMEDIATE", work);
  ++generation_;
}

void Store::read(const std::function<void()>& work) {
  if (inTransaction_) return work();
  inTransaction("BEGIN", work);
}

void Store::inTransaction(const char* begin, const std::function<void()>& work) {
  prepare(begin).run();
  inTransaction_ = true;
  try {
    work();
    prepare("COMMIT").run();
  } catch (...) {
    inTransaction_ = false;
    nameIds_.clear();  // one of them may go with the transaction
    // Some failures have rolled back already, and then there is nothing left to roll back.
    sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    throw;
  }
  inTransaction_ = false;
}

std::int64_t Store::lastInsertId() const { return sqlite3_last_insert_rowid(database_.get()); }

std::int64_t Store::changedRows() const { return sqlite3_changes64(database_.get()); }

std::optional<std::int64_t> Store::nameId(std::string_view name) {
  if (const auto known = nameIds_.find(name); known != nameIds_.end()) return known->second;
  StoreStatement rows = prepare("SELECT id FROM names WHERE name = ?");
  if (!rows.bind(name).step()) return {};
  return nameIds_.emplace(name, rows.number(0)).first->second;
}

std::uint64_t Store::refreshGeneration() {
  StoreStatement version = prepare("PRAGMA data_version");
  version.step();
  if (version.number(0) != seenVersion_) ++generation_;
  seenVersion_ = version.number(0);
  return generation_;
}

void Store::execute(const char* sql) {
  const int result = sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr);
  if (result != SQLITE_OK) fail(result);
}

void Store::fail(int result) const {
  const std::string reason = sqlite3_errstr(result);
  const std::string told = database_ ? sqlite3_errmsg(database_.get()) : reason;
  switch (result & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      failMailbox(path(), "another program has locked it", "Close that program and try again.");
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      failMailbox(path(), "the file is damaged (" + reason + ")", "Restore it from a copy.");
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
      failMailbox(path(), "it can't be written (" + told + ")", "Make the file and its folder writable.");
    case SQLITE_FULL:
    case SQLITE_IOERR:
      failDisk(path(), told);
    default:
      // A table or a column that the layout promises isn't there.
      failMailbox(path(), "its contents are not those of a mailbox (" + told + ")", "Restore it from a copy.");
  }
}

}  // namespace tarnel::mailbox
