#include "createDatabase.h"

#include "Database.h"
#include "Failure.h"
#include "ReplaceFile.h"

namespace tarnel::sqlite {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void failTaken(const fs::path& path) {
  throw Failure(
      failure::pathAccess,
      "\"" + path.string() + "\" exists already and was left as it is. Name another file or remove this one.");
}

[[noreturn]] void failToCreate(const fs::path& path, const std::error_code& error) {
  throw Failure(failure::pathAccess, "\"" + path.string() + "\" can't be created: " + error.message() +
                                         ". Name a file in a folder that this user may write to.");
}

// A database that is still being made, beside its later place; gone with all that belongs to it at the end.
class Draft {
 public:
  explicit Draft(const fs::path& target) {
    std::error_code error;
    path_ = newFileBeside(target, error);
    if (error) failToCreate(target, error);
  }
  ~Draft() {
    std::error_code ignored;
    for (const char* ending : {"", "-wal", "-shm", "-journal"}) fs::remove(path_.string() + ending, ignored);
  }
  Draft(const Draft&) = delete;
  Draft& operator=(const Draft&) = delete;

  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

}  // namespace

void createDatabase(const fs::path& path, const std::string& script) {
  std::error_code error;
  if (fs::exists(fs::symlink_status(path, error))) failTaken(path);
  const Draft draft(path);
  {
    Database database(draft.path(), Database::Opening::orNew);
    database.useWriteAheadLog();
    Transaction transaction(database);
    database.run(script);
    transaction.commit();
  }
  // A second name, unlike a renaming, never takes the place of a file that has come up in the meantime.
  fs::create_hard_link(draft.path(), path, error);
  if (error == std::errc::file_exists) failTaken(path);
  if (error) failToCreate(path, error);
}

}  // namespace tarnel::sqlite
