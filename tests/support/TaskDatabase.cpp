#include "TaskDatabase.h"

#include "Conversions.h"
#include "createDatabase.h"

namespace tarnel::test {

// The link mark's collation is left out on purpose: texts compare without regard to case all the same.
const char* const TaskDatabase::schema = R"sql(
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

TaskDatabase::TaskDatabase(const std::string& script) { sqlite::createDatabase(path, script); }

void TaskDatabase::addTask(const std::string& key, const std::string& desc) {
  run("INSERT INTO TASKS (tskGUIDID, tskDesc) VALUES ('" + key + "', '" + desc + "')");
}

std::string TaskDatabase::describe(const std::string& select) {
  std::string text;
  for (const ado::Row& row : open()->query(select).rows) {
    std::string line;
    for (const Variant& value : row) line += (line.empty() ? "" : "|") + (value.isNull() ? "-" : toText(value));
    text += line + "\n";
  }
  return text;
}

void openBatch(ado::Recordset& rows, TaskDatabase& database, const std::string& statement) {
  rows.Open(database.provider, statement, database.connect(), ado::CursorType::fixed, ado::LockType::batchOptimistic);
}

}  // namespace tarnel::test
