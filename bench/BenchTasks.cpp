#include "BenchTasks.h"

#include <unistd.h>

#include <array>
#include <cstdio>
#include <map>
#include <memory>

#include "createDatabase.h"

namespace tarnel::bench {
namespace {

const std::string schema =
    "CREATE TABLE TASKS (tskGUIDID TEXT COLLATE NOCASE PRIMARY KEY, tskDesc TEXT, tskNotes TEXT, tskHasNotes BOOLEAN, "
    "tskStatus SMALLINT, tskDoneDate DATETIME, tskDeadline DATETIME, tskProject TEXT, tskProjectKey TEXT, tskCurrent "
    "BOOLEAN, tskImp SMALLINT, tskDifficulty SMALLINT, tskTimeNeeded INTEGER, tskTimeSpent INTEGER, tskTimeScheduled "
    "INTEGER, tskPossPoints INTEGER, tskHasChecklist BOOLEAN, tskHasSchedule BOOLEAN, tskOUTEntityID TEXT, "
    "tskCreatedDate DATETIME, tskLastMod DATETIME, tskCustSortTarnel INTEGER, tskCustSortCur INTEGER, tskCustSortProj "
    "INTEGER);";

// Numbers spread by multiplication, so that the order by points is not the order of the rows.
std::string fill(std::int64_t count) {
  return "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < " + std::to_string(count) +
         ") INSERT INTO TASKS SELECT printf('%08X-7C1D-4A6E-9F30-5B2D8E1A4C77', i), 'Call the office about matter ' || "
         "i, 'Ask for the papers of last year and for the name of whoever signs them.', 1, 1 + i % 3, NULL, "
         "'2026-11-19 08:30:00', 'Household', '0000AAAA-7C1D-4A6E-9F30-5B2D8E1A4C77', 1, i % 5, i % 4, i % 240, i % "
         "60, "
         "i % 30, i * 7919 % 1000, 0, 0, NULL, '2026-01-02 10:00:00', '2026-03-04 11:15:00', i, i, i FROM n;";
}

int made = 0;

}  // namespace

BenchTasks& BenchTasks::of(std::int64_t count) {
  static std::map<std::int64_t, std::unique_ptr<BenchTasks>> kept;
  std::unique_ptr<BenchTasks>& tasks = kept[count];
  if (!tasks) tasks = std::make_unique<BenchTasks>(count);
  return *tasks;
}

BenchTasks::BenchTasks(std::int64_t count)
    : path_(std::filesystem::temp_directory_path() /
            ("tarnel-bench-" + std::to_string(getpid()) + "-" + std::to_string(++made) + ".db")) {
  sqlite::createDatabase(path_, schema + fill(count));
}

BenchTasks::~BenchTasks() {
  std::error_code ignored;
  for (const char* ending : {"", "-wal", "-shm"}) std::filesystem::remove(path_.string() + ending, ignored);
}

void BenchTasks::open(ado::Recordset& rows, const std::string& statement) {
  rows.Open(provider_, statement, connect(), ado::CursorType::dynamic, ado::LockType::batchOptimistic);
}

std::string BenchTasks::key(std::int64_t task) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%08llX-7C1D-4A6E-9F30-5B2D8E1A4C77", static_cast<unsigned long long>(task));
  return text.data();
}

}  // namespace tarnel::bench
