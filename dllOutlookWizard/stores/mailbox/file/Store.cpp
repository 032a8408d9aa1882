#include "Store.h"

#include "MailboxFailures.h"
#include "MailboxFile.h"
#include "Schema.h"

namespace tarnel::mailbox {
namespace {

// How long a write of another program is waited for before the mailbox counts as locked, in milliseconds.
constexpr int lockWait = 1000;

const std::filesystem::path& inspected(const std::filesystem::path& path) {
  inspectMailbox(path);
  return path;
}

}  // namespace

Store::Store(const std::filesystem::path& path)
    : file_(path),
      folder_(folderOf(path)),
      connection_(inspected(path), sqlite::Connection::Opening::existing, lockWait,
                  [path](const sqlite::Refusal& refusal) { failRefused(path, refusal); }) {
  requireSoundness();
}

Store::~Store() { file_.emptyLog(connection_); }

void Store::requireSoundness() {
  {
    // The first statement that touches the file: a lock or damage shows here.
    Statement version = prepare("PRAGMA user_version");
    version.step();
    if (version.number(0) > schema::version) failNewerVersion(path(), version.number(0));
  }
  // The log grows to 8 MB before it is brought into the file, which costs a wait for the disk.
  connection_.run(
      "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL; PRAGMA foreign_keys = ON; "
      "PRAGMA temp_store = MEMORY; PRAGMA wal_autocheckpoint = 2048;");
  {
    Statement id = prepare("SELECT id FROM store");
    Statement folders = prepare("SELECT id, name FROM folders");
    while (folders.step()) folders_.emplace(folders.number(0), folders.text(1));
    if (!id.step() || folders_.size() != 3) failDamaged(path());
    id_ = id.text(0);
  }
  refreshGeneration();
}

bool Store::rest() { return file_.rest(connection_); }

bool Store::wake() {
  if (!file_.wake(connection_)) return false;
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

void Store::write(const std::function<void()>& work) {
  if (inTransaction_) return work();
  requireWritable();
  inTransaction(sqlite::Transaction::Kind::writing, work);
  ++generation_;
}

void Store::read(const std::function<void()>& work) {
  if (inTransaction_) return work();
  inTransaction(sqlite::Transaction::Kind::reading, work);
}

void Store::inTransaction(sqlite::Transaction::Kind kind, const std::function<void()>& work) {
  sqlite::Transaction transaction(connection_, kind);
  inTransaction_ = true;
  try {
    work();
    transaction.commit();
  } catch (...) {
    inTransaction_ = false;
    nameIds_.clear();  // one of them may go with the transaction
    throw;
  }
  inTransaction_ = false;
}

std::optional<std::int64_t> Store::nameId(std::string_view name) {
  if (const auto known = nameIds_.find(name); known != nameIds_.end()) return known->second;
  Statement rows = prepare("SELECT id FROM names WHERE name = ?");
  if (!rows.bind(name).step()) return {};
  return nameIds_.emplace(name, rows.number(0)).first->second;
}

std::uint64_t Store::refreshGeneration() {
  Statement version = prepare("PRAGMA data_version");
  version.step();
  if (version.number(0) != seenVersion_) ++generation_;
  seenVersion_ = version.number(0);
  return generation_;
}

}  // namespace tarnel::mailbox
