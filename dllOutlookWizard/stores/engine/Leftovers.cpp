#include "Leftovers.h"

#include <array>
#include <system_error>

namespace tarnel::sqlite {
namespace {

namespace fs = std::filesystem;

fs::path beside(const fs::path& database, const char* ending) { return database.string() + ending; }

bool holdsSomething(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::symlink_status(file, error);
  return fs::exists(status) && (!fs::is_regular_file(status) || fs::file_size(file, error) > 0);
}

}  // namespace

fs::path clearPlaceOf(const fs::path& database) {
  std::error_code ignored;
  if (fs::exists(fs::symlink_status(database, ignored))) return {};
  constexpr std::array logs{"-wal", "-journal"};
  for (const char* ending : logs)
    if (fs::path log = beside(database, ending); holdsSomething(log)) return log;
  for (const char* ending : logs) fs::remove(beside(database, ending), ignored);
  fs::remove(beside(database, "-shm"), ignored);  // an index of the log
  return {};
}

void removeDatabase(const fs::path& database) {
  std::error_code ignored;
  for (const char* ending : {"", "-wal", "-shm", "-journal"}) fs::remove(beside(database, ending), ignored);
}

}  // namespace tarnel::sqlite
