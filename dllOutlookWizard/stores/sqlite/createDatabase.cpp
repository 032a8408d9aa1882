#include "createDatabase.h"

#include "Database.h"
#include "Failure.h"
#include "Leftovers.h"
#include "ReplaceFile.h"
#include "Transaction.h"

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

[[noreturn]] void failLeftover(const fs::path& path, const fs::path& leftover) {
  throw Failure(failure::pathAccess, "\"" + path.string() + "\" can't be created: \"" + leftover.string() +
                                         "\" holds the last changes of a database that was here before. Put that "
                                         "database back, or remove this file with it.");
}

// A database that is still being made, beside its later place; gone with all that belongs to it at the end.
class Draft {
 public:
  explicit Draft(const fs::path& target) {
    std::error_code error;
    path_ = newFileBeside(target, error);
    if (error) failToCreate(target, error);
  }
  ~Draft() { removeDatabase(path_); }
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
  if (const fs::path leftover = clearPlaceOf(path); !leftover.empty()) failLeftover(path, leftover);
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
