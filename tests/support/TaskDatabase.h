#pragma once

#include <string>

#include "Conversions.h"
#include "Recordset.h"
#include "SqliteProvider.h"
#include "TempFolder.h"
#include "createDatabase.h"

namespace tarnel::test {

// The rows of a SELECT, values by "|", rows by line ends, Null as "-".
inline std::string describe(ado::Session& session, const std::string& select) {
  std::string text;
  for (const ado::Row& row : session.query(select).rows) {
    const char* separator = "";
    for (const Variant& value : row) {
      text += separator + (value.isNull() ? "-" : toText(value));
      separator = "|";
    }
    text += "\n";
  }
  return text;
}

// A small task database on disk: the tables and columns that the wizard uses, the rows that the test adds.
class TaskDatabase {
 public:
  // The script is the engine's own SQL.
  explicit TaskDatabase(const std::string& script = schema) { sqlite::createDatabase(path, script); }

  // Jet's SQL, through a session of its own.
  void run(const std::string& statement) { open()->execute(statement); }
  // "GUID" with all numbers 0, in progress, current.
  void addTask(const std::string& key, const std::string& desc = "Task") {
    run("INSERT INTO TASKS (tskGUIDID, tskDesc) VALUES ('" + key + "', '" + desc + "')");
  }
  std::string describe(const std::string& select) { return test::describe(*open(), select); }

  std::shared_ptr<ado::Session> open() { return provider.open(connect()); }
  std::string connect() const { return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path.string() + ";"; }

  TempFolder folder;
  std::filesystem::path path = folder / "TarnelData.mdb";
  sqlite::SqliteProvider provider;

 private:
  // The link mark's collation is left out on purpose: texts compare without regard to case all the same.
  static constexpr const char* schema = R"sql(
CREATE TABLE TASKS (
  tskGUIDID TEXT COLLATE NOCASE PRIMARY KEY, tskDesc TEXT, tskNotes TEXT, tskHasNotes BOOLEAN DEFAULT 0,
  tskStatus SMALLINT DEFAULT 1, tskDoneDate DATETIME, tskDeadline DATETIME, tskProject TEXT, tskProjectKey TEXT,
  tskCurrent BOOLEAN DEFAULT 1, tskImp SMALLINT DEFAULT 0, tskDifficulty SMALLINT DEFAULT 0,
  tskTimeNeeded INTEGER DEFAULT 0, tskTimeSpent INTEGER DEFAULT 0, tskTimeScheduled INTEGER DEFAULT 0,
  tskPossPoints INTEGER DEFAULT 0, tskHasChecklist BOOLEAN DEFAULT 0, tskHasSchedule BOOLEAN DEFAULT 0,
  tskOUTEntityID TEXT, tskCreatedDate DATETIME, tskLastMod DATETIME, tskCustSortTarnel INTEGER DEFAULT 0,
  tskCustSortCur INTEGER DEFAULT 0, tskCustSortProj INTEGER DEFAULT 0);
CREATE TABLE TASKAPPTS (
  taGUIDID TEXT COLLATE NOCASE PRIMARY KEY, taTaskGUIDID TEXT COLLATE NOCASE, taTaskDesc TEXT,
  taStartTime DATETIME, taEndTime DATETIME, taOutlookEntryID TEXT);
CREATE TABLE TASKKEYWORDS (ktTASKGUID TEXT COLLATE NOCASE, ktKeyword TEXT);
CREATE TABLE PROJECTS (prjGUIDID TEXT COLLATE NOCASE PRIMARY KEY, prjProject TEXT);
CREATE TABLE Settings (
  SetUser TEXT, SetSettingSection TEXT, SetSettingName TEXT, SetSettingValue TEXT, SetDefault,
  setSettingDisplayOrd INTEGER, setSettingComment TEXT);
)sql";
};

// Opens the statement batch-optimistic.
inline void openBatch(ado::Recordset& rows, TaskDatabase& database, const std::string& statement) {
  rows.Open(database.provider, statement, database.connect(), ado::CursorType::fixed, ado::LockType::batchOptimistic);
}

}  // namespace tarnel::test
