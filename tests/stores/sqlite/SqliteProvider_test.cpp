#include "SqliteProvider.h"

#include <gtest/gtest.h>

#include <fstream>

#include "Database.h"
#include "FailureOf.h"
#include "Statement.h"
#include "TaskDatabase.h"
#include "createDatabase.h"

namespace tarnel::sqlite {
namespace {

using ado::Column;
using ado::Result;
using ado::Row;
using test::failureOf;

// What the cursor engine relies on, asked through the seam alone, and what becomes of the files.
struct SqliteProviderTest : testing::Test {
  SqliteProviderTest() {
    database.addTask("A-1", "Pay");
    database.addTask("B-2", "call");
  }
  Result query(const std::string& statement) { return session->query(statement); }
  std::size_t countOf(const std::string& criterion) {
    return query("SELECT tskGUIDID FROM TASKS WHERE " + criterion).rows.size();
  }

  test::TaskDatabase database;
  std::shared_ptr<ado::Session> session = database.open();
  test::TempFolder folder;
};

TEST_F(SqliteProviderTest, valuesComeByTheTypesOfTheirColumns) {
  session->execute(
      "UPDATE TASKS SET tskDeadline = #11/19/2026 08:30:00#, tskTimeNeeded = 3000000000, tskHasNotes = TRUE, "
      "tskDoneDate = 'some day', tskTimeSpent = 'much' WHERE tskGUIDID = 'A-1'");
  const Result result = query(
      "SELECT tskDesc, tskHasNotes, tskStatus, tskTimeNeeded, tskDeadline, tskNotes, tskDoneDate, tskTimeSpent FROM "
      "TASKS WHERE tskGUIDID = 'A-1'");
  EXPECT_EQ(
      result.rows.unpacked(),
      (std::vector<Row>{{"Pay", true, 3, 3000000000.0, Date::of(2026, 11, 19, 8, 30), Null{}, "some day", "much"}}));
  EXPECT_EQ(result.columns[1].type, Column::Type::boolean);
  EXPECT_EQ(result.columns[4].type, Column::Type::dateTime);
}

TEST_F(SqliteProviderTest, onlyPlainReadingsOfOneTableCanBeWrittenBack) {
  for (const char* statement :
       {"SELECT * FROM TASKS", "select T.tskDesc from tasks AS T order by T.tskDesc desc",
        "SELECT tskDesc FROM [TASKS];",
        "SELECT Tasks.tskDesc, Tasks.tskDesc FROM TASKS WHERE tskGUIDID IN (SELECT taTaskGUIDID FROM TASKAPPTS)"}) {
    const Result result = query(statement);
    EXPECT_EQ(result.table, "TASKS") << statement;
    EXPECT_EQ(result.rowIds.size(), result.rows.size()) << statement;
  }
  for (const char* statement :
       {"SELECT count(*) FROM TASKS", "SELECT tskDesc, 1 FROM TASKS", "SELECT DISTINCT tskDesc FROM TASKS",
        "SELECT tskDesc FROM TASKS GROUP BY tskDesc", "SELECT tskDesc FROM TASKS, PROJECTS",
        "SELECT tskDesc FROM TASKS LEFT JOIN PROJECTS ON prjGUIDID = tskProjectKey",
        "SELECT tskDesc FROM TASKS UNION SELECT tskDesc FROM TASKS", "SELECT tskDesc FROM (SELECT tskDesc FROM TASKS)"})
    EXPECT_EQ(query(statement).table, "") << statement;
}

TEST_F(SqliteProviderTest, textsCompareAndSortWithoutRegardToCase) {
  EXPECT_EQ(countOf("tskDesc = 'PAY'"), 1U);
  EXPECT_EQ(countOf("'CALL' = tskDesc"), 1U);
  EXPECT_EQ(countOf("tskDesc IN ('CALL', 'pay')"), 2U);
  EXPECT_EQ(countOf("tskDesc NOT IN ('CALL')"), 1U);
  EXPECT_EQ(countOf("tskDesc BETWEEN 'CA' AND 'CZ'"), 1U);
  EXPECT_EQ(countOf("tskDesc <> 'pay' AND tskDesc >= 'CALL'"), 1U);
  EXPECT_EQ(countOf("tskDesc & 'x' = 'PAYX'"), 1U);
  database.run("UPDATE TASKS SET tskProjectKey = 'prj' WHERE tskGUIDID = 'A-1'");
  EXPECT_EQ(countOf("tskProjectKey = 'PRJ' OR tskProjectKey IN ('Prj') OR 'pRJ' = Tasks.tskProjectKey"), 0U) << "a key";
  EXPECT_EQ(countOf("tskProjectKey = 'prj' AND tskProjectKey <> 'PRJ' AND 'prj' = [tskProjectKey]"), 1U);
  EXPECT_EQ(database.describe("SELECT tskDesc FROM TASKS ORDER BY tskDesc"), "call\nPay\n");
  EXPECT_EQ(database.describe("SELECT tskDesc FROM TASKS ORDER BY tskStatus, tskDesc DESC"), "Pay\ncall\n");
}

TEST_F(SqliteProviderTest, datesAndTruthValuesAreComparedAsTheyAreHeld) {
  session->execute("INSERT INTO TASKAPPTS (taGUIDID, taStartTime) VALUES ('X', #11/19/2026 14:00:00#)");
  session->execute("INSERT INTO TASKAPPTS (taGUIDID, taStartTime) VALUES ('Y', #11/20/2026 00:00:00#)");
  session->execute("INSERT INTO TASKAPPTS (taGUIDID, taStartTime) VALUES ('Z', #11/21/2026#)");
  EXPECT_EQ(
      database.describe("SELECT taGUIDID from TaskAPPTS WHERE taStartTime >= #11/19/2026 00:00:00# AND taStartTime <= "
                        "#11/20/2026 00:00:00#ORDER BY taStartTime"),
      "X\nY\n");
  database.run("UPDATE TASKS SET tskCurrent = -1 WHERE tskGUIDID = 'A-1'");  // as other programs write it
  EXPECT_EQ(countOf("tskCurrent = TRUE"), 2U);
  EXPECT_EQ(countOf("tskCurrent <> FALSE AND NOT tskCurrent = FALSE"), 2U);
  EXPECT_EQ(countOf("tskCurrent <> TRUE"), 0U);
  EXPECT_EQ(countOf("Tasks.tskHasSchedule = FALSE AND tskDeadline IS NULL"), 2U);
}

TEST_F(SqliteProviderTest, quotesInTextsAndASecondStatement) {
  database.addTask("C-3", "it''s; \"DROP\" #1#");
  EXPECT_EQ(countOf("tskDesc = \"IT'S; \"\"drop\"\" #1#\""), 1U);
  EXPECT_EQ(failureOf([&] { session->execute("DELETE FROM TASKS; DELETE FROM PROJECTS"); }), failure::badStatement);
  EXPECT_EQ(countOf("tskStatus = 3"), 3U);
  EXPECT_EQ(session->execute("DELETE * FROM TASKS;"), 3);
}

TEST_F(SqliteProviderTest, wrongStatementsFail) {
  for (const char* statement : {"", ";", "SELECT", "SELECT x FROM TASKS", "SELECT * FROM Nowhere", "DELETE FROM TASKS",
                                "SELECT 'open FROM TASKS", "SELECT * FROM TASKS WHERE tskDeadline = #2/30/2026#"})
    EXPECT_EQ(failureOf([&] { query(statement); }), failure::badStatement) << statement;
  for (const char* statement : {"SELECT * FROM TASKS", "DELETE FROM Nowhere", "PRAGMA user_version = 1",
                                "ATTACH 'other.db' AS other", "COMMIT"})
    EXPECT_EQ(failureOf([&] { session->execute(statement); }), failure::badStatement) << statement;
}

TEST_F(SqliteProviderTest, aConnectionStringWithoutAFileSaysSo) {
  for (const char* text : {"Provider=x;", "Data Source=;", "nonsense"})
    EXPECT_THROW(database.provider.open(text), Failure) << text;
}

TEST_F(SqliteProviderTest, aSessionIsSharedAndLeavesTheFileAsIfClosedWhileNobodyHoldsIt) {
  EXPECT_EQ(database.provider.open("data source=\"" + database.path.string() + "\""), session);
  EXPECT_EQ(database.provider.open("Data Source=" + (database.folder / "x/../TarnelData.mdb").string()), session);
  const ado::Session* const first = session.get();
  session.reset();
  const std::string before = test::contentsOf(database.path);
  session = database.open();
  EXPECT_EQ(session.get(), first);
  session->execute("DELETE FROM TASKS");
  session.reset();
  EXPECT_TRUE(test::contentsOf(database.path) != before) << "the file alone holds what was written";
  std::ofstream(database.path, std::ios::binary) << before;  // put back from a copy
  EXPECT_EQ(database.describe("SELECT tskGUIDID FROM TASKS"), "A-1\nB-2\n");
}

TEST_F(SqliteProviderTest, betweenCommandsTheFileAloneHoldsAllAndMayBePutBack) {
  Database other(database.path);  // as another program has it open
  other.run("SELECT count(*) FROM TASKS");
  for (const int tasks : {1, 900}) {  // with many the engine itself empties the log on the way
    database.provider.rest();
    const std::string before = test::contentsOf(database.path);
    for (int i = 0; i < tasks; ++i) session->execute("UPDATE TASKS SET tskImp = " + std::to_string(i % 5 + 1));
    session->execute("DELETE FROM TASKS WHERE tskGUIDID = 'A-1'");
    database.provider.rest();
    std::filesystem::copy_file(database.path, folder / "copy.mdb", std::filesystem::copy_options::overwrite_existing);
    Database copy(folder / "copy.mdb");
    Statement count(copy, "SELECT count(*) FROM TASKS", Statement::Use::once);
    EXPECT_TRUE(count.step() && count.number(0) == 1) << tasks;
    std::ofstream(database.path, std::ios::binary) << before;
    EXPECT_EQ(query("SELECT tskGUIDID FROM TASKS").rows.size(), 2U) << tasks;
  }
  database.provider.rest();
  std::filesystem::remove(database.path);
  EXPECT_EQ(failureOf([&] { query("SELECT tskGUIDID FROM TASKS"); }), failure::engine);
}

TEST_F(SqliteProviderTest, replacedFileTakesNoWritesOfTheOldSession) {
  session.reset();
  for (const char* backup : {"first.mdb", "second.mdb"}) std::filesystem::copy_file(database.path, folder / backup);
  database.run("DELETE FROM TASKS");
  session = database.open();
  std::filesystem::rename(folder / "first.mdb", database.path);
  EXPECT_EQ(failureOf([&] { session->execute("DELETE FROM TASKS"); }), failure::engine);
  session.reset();
  EXPECT_EQ(database.describe("SELECT tskGUIDID FROM TASKS"), "A-1\nB-2\n");
  session = database.open();
  std::filesystem::rename(folder / "second.mdb", database.path);
  EXPECT_NE(database.open(), session);
  session.reset();
  std::filesystem::create_hard_link(database.path, folder / "other name.mdb");
  EXPECT_EQ(failureOf([&] { database.open(); }), failure::engine) << "two names would have two logs";
}

TEST_F(SqliteProviderTest, aLogThatIsPutBackWithItsFileIsRead) {
  session->execute("DELETE FROM TASKS WHERE tskGUIDID = 'A-1'");
  const auto file = [&](const char* ending) { return std::filesystem::path(database.path.string() + ending); };
  const auto kept = [&](const char* ending) { return folder / (std::string("kept") + ending); };
  for (const char* ending : {"", "-wal"}) std::filesystem::copy_file(file(ending), kept(ending));
  session->execute("DELETE FROM TASKS");
  session.reset();
  for (const char* ending : {"", "-wal"})
    std::filesystem::copy_file(kept(ending), file(ending), std::filesystem::copy_options::overwrite_existing);
  EXPECT_EQ(database.describe("SELECT tskGUIDID FROM TASKS"), "B-2\n");
}

TEST_F(SqliteProviderTest, readingLeavesAForeignDatabaseAsItIs) {
  const auto foreign = folder / "foreign.db";
  Database(foreign, Database::Opening::orNew).run("CREATE TABLE notes (text)");
  const std::string before = test::contentsOf(foreign);
  session = database.provider.open("Data Source=" + foreign.string());
  EXPECT_EQ(query("SELECT * FROM notes").rows.size(), 0U);
  EXPECT_THROW(query("SELECT * FROM TASKS"), Failure);
  EXPECT_THROW(session->execute("DELETE FROM TASKS"), Failure);
  EXPECT_EQ(test::contentsOf(foreign), before);
}

TEST_F(SqliteProviderTest, makingADatabaseLeavesOneFileOrNone) {
  createDatabase(folder / "new.db", "CREATE TABLE a (x)");
  EXPECT_THROW(createDatabase(folder / "bad.db", "CREATE TABLE a (x); INSERT INTO b VALUES (1)"), Failure);
  EXPECT_EQ(failureOf([&] { createDatabase(folder / "none/new.db", "CREATE TABLE a (x)"); }), failure::pathAccess);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

}  // namespace
}  // namespace tarnel::sqlite
