#include "TaskDatabaseScript.h"

namespace tarnel::host {
namespace {

// Text compares without regard to case, as the task database's users are used to, keys to the letter. A DATETIME column
// holds ISO text, a BOOLEAN one 0 or 1. A new row is an open task that nobody has worked on: its defaults are not Null
// where the lists turn a column into text. What Null means differs from empty in the two link marks alone.
constexpr const char* tables = R"sql(
CREATE TABLE TASKS (
  tskGUIDID TEXT NOT NULL PRIMARY KEY,
  tskDesc TEXT COLLATE NOCASE DEFAULT '',
  tskNotes TEXT COLLATE NOCASE,
  tskHasNotes BOOLEAN NOT NULL DEFAULT 0,
  tskStatus INTEGER NOT NULL DEFAULT 3,
  tskDoneDate DATETIME,
  tskDeadline DATETIME,
  tskProject TEXT COLLATE NOCASE DEFAULT '',
  tskProjectKey TEXT DEFAULT '',
  tskCurrent BOOLEAN NOT NULL DEFAULT 0,
  tskImp INTEGER DEFAULT 2,
  tskDifficulty INTEGER DEFAULT 0,
  tskTimeNeeded INTEGER DEFAULT 0,
  tskTimeSpent INTEGER DEFAULT 0,
  tskTimeScheduled INTEGER DEFAULT 0,
  tskPossPoints INTEGER DEFAULT 0,
  tskHasChecklist BOOLEAN NOT NULL DEFAULT 0,
  tskHasSchedule BOOLEAN NOT NULL DEFAULT 0,
  tskOUTEntityID TEXT,
  tskCreatedDate DATETIME,
  tskLastMod DATETIME,
  tskCustSortTarnel INTEGER DEFAULT 0,
  tskCustSortCur INTEGER DEFAULT 0,
  tskCustSortProj INTEGER DEFAULT 0
);
CREATE INDEX TASKS_current ON TASKS (tskCurrent);
CREATE INDEX TASKS_project ON TASKS (tskProjectKey);

CREATE TABLE TASKAPPTS (
  taGUIDID TEXT NOT NULL PRIMARY KEY,
  taTaskGUIDID TEXT,
  taTaskDesc TEXT COLLATE NOCASE DEFAULT '',
  taStartTime DATETIME,
  taEndTime DATETIME,
  taOutlookEntryID TEXT
);
CREATE INDEX TASKAPPTS_start ON TASKAPPTS (taStartTime);
CREATE INDEX TASKAPPTS_task ON TASKAPPTS (taTaskGUIDID);

CREATE TABLE TASKKEYWORDS (
  ktTASKGUID TEXT NOT NULL,
  ktKeyword TEXT COLLATE NOCASE NOT NULL,
  PRIMARY KEY (ktTASKGUID, ktKeyword)
);

CREATE TABLE PROJECTS (
  prjGUIDID TEXT NOT NULL PRIMARY KEY,
  prjProject TEXT COLLATE NOCASE NOT NULL
);

CREATE TABLE Settings (
  SetUser TEXT COLLATE NOCASE NOT NULL DEFAULT '1',
  SetSettingSection TEXT COLLATE NOCASE NOT NULL,
  SetSettingName TEXT COLLATE NOCASE NOT NULL,
  SetSettingValue TEXT COLLATE NOCASE,
  SetDefault TEXT COLLATE NOCASE,
  setSettingDisplayOrd INTEGER DEFAULT 0,
  setSettingComment TEXT COLLATE NOCASE
);
CREATE INDEX Settings_section ON Settings (SetUser, SetSettingSection, setSettingDisplayOrd);
)sql";

}  // namespace

std::string taskDatabaseScript() { return tables + defaultSettingsScript(); }

}  // namespace tarnel::host
