#include "Provider.h"

#include <gtest/gtest.h>

#include <functional>

#include "Failure.h"
#include "TaskDatabase.h"

namespace tarnel::ado {
namespace {

// What the cursor engine relies on, asked through the seam alone; run for each engine that fills it.
struct Engine {
  virtual ~Engine() = default;
  virtual Provider& provider() = 0;
  virtual std::string connect() = 0;  // to an empty task database
};

struct SqliteEngine : Engine {
  Provider& provider() override { return database.provider; }
  std::string connect() override { return database.connect(); }
  test::TaskDatabase database;
};

using MakeEngine = std::unique_ptr<Engine> (*)();

class ProviderContract : public testing::TestWithParam<MakeEngine> {
 protected:
  ProviderContract() {
    session = engine->provider().open(engine->connect());
    add("A-1", "Pay");
    add("B-2", "call");
  }
  void add(const std::string& key, const std::string& desc) {
    session->execute("INSERT INTO TASKS (tskGUIDID, tskDesc) VALUES ('" + key + "', '" + desc + "')");
  }
  Result query(const std::string& statement) { return session->query(statement); }
  std::size_t countOf(const std::string& criterion) {
    return query("SELECT tskGUIDID FROM TASKS WHERE " + criterion).rows.size();
  }
  static Change update(const Result& shape, std::size_t row, std::size_t column, const Variant& value) {
    Change change{Change::Kind::update, {shape.rowIds[row], {}}, {column}, {value}, {shape.rows.value(row, column)}};
    for (const std::size_t key : shape.keyColumns) change.identity.keys.push_back(shape.rows.value(row, key));
    return change;
  }
  static std::int32_t failureOf(const std::function<void()>& act) {
    try {
      act();
    } catch (const Failure& failure) {
      return failure.number();
    }
    return 0;
  }

  std::unique_ptr<Engine> engine = GetParam()();
  std::shared_ptr<Session> session;
};

TEST_P(ProviderContract, valuesComeByTheTypesOfTheirColumns) {
  session->execute(
      "UPDATE TASKS SET tskDeadline = #11/19/2026 08:30:00#, tskTimeNeeded = 3000000000, tskHasNotes = TRUE, "
      "tskDoneDate = 'some day', tskTimeSpent = 'much' WHERE tskGUIDID = 'A-1'");
  const Result result = query(
      "SELECT tskDesc, tskHasNotes, tskStatus, tskTimeNeeded, tskDeadline, tskNotes, tskDoneDate, tskTimeSpent FROM "
      "TASKS WHERE tskGUIDID = 'A-1'");
  EXPECT_EQ(
      result.rows.unpacked(),
      (std::vector<Row>{{"Pay", true, 1, 3000000000.0, Date::of(2026, 11, 19, 8, 30), Null{}, "some day", "much"}}));
  EXPECT_EQ(result.columns[1].type, Column::Type::boolean);
  EXPECT_EQ(result.columns[4].type, Column::Type::dateTime);
}

TEST_P(ProviderContract, onlyPlainReadingsOfOneTableCanBeWrittenBack) {
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

TEST_P(ProviderContract, textsCompareAndSortWithoutRegardToCase) {
  EXPECT_EQ(countOf("tskDesc = 'PAY'"), 1U);
  EXPECT_EQ(countOf("'CALL' = tskDesc"), 1U);
  EXPECT_EQ(countOf("tskDesc IN ('CALL', 'pay')"), 2U);
  EXPECT_EQ(countOf("tskDesc NOT IN ('CALL')"), 1U);
  EXPECT_EQ(countOf("tskDesc BETWEEN 'CA' AND 'CZ'"), 1U);
  EXPECT_EQ(countOf("tskDesc <> 'pay' AND tskDesc >= 'CALL'"), 1U);
  EXPECT_EQ(countOf("tskDesc & 'x' = 'PAYX'"), 1U);
  EXPECT_EQ(query("SELECT tskDesc FROM TASKS ORDER BY tskDesc").rows.unpacked(), (std::vector<Row>{{"call"}, {"Pay"}}));
  EXPECT_EQ(query("SELECT tskDesc FROM TASKS ORDER BY tskStatus, tskDesc DESC").rows.unpacked(),
            (std::vector<Row>{{"Pay"}, {"call"}}));
}

TEST_P(ProviderContract, datesAndTruthValuesAreComparedAsTheyAreHeld) {
  session->execute("INSERT INTO TASKAPPTS (taGUIDID, taStartTime) VALUES ('X', #11/19/2026 14:00:00#)");
  session->execute("INSERT INTO TASKAPPTS (taGUIDID, taStartTime) VALUES ('Y', #11/20/2026 00:00:00#)");
  session->execute("INSERT INTO TASKAPPTS (taGUIDID, taStartTime) VALUES ('Z', #11/21/2026#)");
  EXPECT_EQ(query("SELECT taGUIDID from TaskAPPTS WHERE taStartTime >= #11/19/2026 00:00:00# AND taStartTime <= "
                  "#11/20/2026 00:00:00#ORDER BY taStartTime")
                .rows.unpacked(),
            (std::vector<Row>{{"X"}, {"Y"}}));
  EXPECT_EQ(countOf("tskCurrent = TRUE"), 2U);
  EXPECT_EQ(countOf("Tasks.tskHasSchedule = FALSE AND tskDeadline IS NULL"), 2U);
}

TEST_P(ProviderContract, quotesInTextsAndASecondStatement) {
  add("C-3", "it''s; \"DROP\" #1#");
  EXPECT_EQ(countOf("tskDesc = \"IT'S; \"\"drop\"\" #1#\""), 1U);
  EXPECT_EQ(failureOf([&] { session->execute("DELETE FROM TASKS; DELETE FROM PROJECTS"); }), failure::badStatement);
  EXPECT_EQ(countOf("tskStatus = 1"), 3U);
  EXPECT_EQ(session->execute("DELETE * FROM TASKS;"), 3);
}

TEST_P(ProviderContract, wrongStatementsFail) {
  for (const char* statement : {"", ";", "SELECT", "SELECT x FROM TASKS", "SELECT * FROM Nowhere", "DELETE FROM TASKS",
                                "SELECT 'open FROM TASKS", "SELECT * FROM TASKS WHERE tskDeadline = #2/30/2026#"})
    EXPECT_EQ(failureOf([&] { query(statement); }), failure::badStatement) << statement;
  for (const char* statement : {"SELECT * FROM TASKS", "DELETE FROM Nowhere", "PRAGMA user_version = 1",
                                "ATTACH 'other.db' AS other", "COMMIT"})
    EXPECT_EQ(failureOf([&] { session->execute(statement); }), failure::badStatement) << statement;
}

TEST_P(ProviderContract, writesGiveBackTheRowsAsTheyAreNow) {
  const Result shape = query("SELECT tskGUIDID, tskDesc, tskStatus FROM TASKS ORDER BY tskGUIDID");
  const Change insert{Change::Kind::insert, {}, {0}, {"C-3"}, {Null{}}};
  const auto written = session->write(shape, {update(shape, 1, 1, Null{}), insert});
  ASSERT_EQ(written.size(), 2U);
  EXPECT_EQ(written[0].row, (Row{"B-2", Null{}, 1}));
  EXPECT_EQ(written[1].row, (Row{"C-3", Null{}, 1}));
  EXPECT_EQ(query("SELECT tskGUIDID FROM TASKS WHERE tskDesc IS NULL").rows.size(), 2U);
  EXPECT_EQ(session->reread(shape, {{written[1].rowId, {"C-3"}}, {written[1].rowId, {"other"}}, {999, {"A-1"}}}),
            (std::vector<std::optional<Row>>{Row{"C-3", Null{}, 1}, {}, {}}));
}

TEST_P(ProviderContract, aConflictTakesTheWholeWriteBack) {
  const Result shape = query("SELECT tskGUIDID, tskDesc FROM TASKS ORDER BY tskGUIDID");
  session->execute("UPDATE TASKS SET tskDesc = 'CALL' WHERE tskGUIDID = 'B-2'");
  EXPECT_EQ(failureOf([&] {
              session->write(shape, {update(shape, 0, 1, "mine"), update(shape, 1, 1, "mine")});
            }),
            failure::writeConflict);
  EXPECT_EQ(countOf("tskDesc = 'mine'"), 0U);
  session->write(shape, {update(shape, 0, 1, "mine")});
  EXPECT_EQ(countOf("tskDesc = 'mine'"), 1U);
}

INSTANTIATE_TEST_SUITE_P(Sqlite, ProviderContract, testing::Values(MakeEngine([]() -> std::unique_ptr<Engine> {
                           return std::make_unique<SqliteEngine>();
                         })));

}  // namespace
}  // namespace tarnel::ado
