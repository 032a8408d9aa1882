#include <gtest/gtest.h>

#include <functional>

#include "FailureOf.h"
#include "TaskDatabase.h"
#include "TestPlatform.h"
#include "clsSettings.h"
#include "clsTaskAppts.h"
#include "clsTaskList.h"
#include "clsUtilCMD.h"
#include "clsVLProjectsList.h"

namespace tarnel::test {
namespace {

using ado::CursorType;
using ado::LockType;
using RecordsetPtr = std::shared_ptr<ado::Recordset>;

struct RecordClassesTest : testing::Test {
  RecordClassesTest() {
    platform.use(database.provider);
    session().theszConnect = database.connect();
    database.addTask("A-1", "pay");
    database.addTask("B-2", "Call");
  }

  // "project module procedure number" of each report.
  std::string reports() {
    std::string text;
    for (const FailureReport& report : platform.errorReport.reports)
      text +=
          report.project + " " + report.module + " " + report.procedure + " " + std::to_string(report.number) + "\n";
    return text;
  }
  struct Mode {
    CursorType cursor;
    LockType lock;
    bool isConnected = true;
    bool operator==(const Mode&) const = default;
  };
  template <class Class, class Open>
  Mode modeOf(Open open) {
    Class records;
    records.SetSQL("SELECT * FROM TASKS");
    std::invoke(open, records, rst);
    return {rst->cursorType(), rst->lockType(), failureOf([&] { rst->Requery(); }) == 0};
  }
  std::string order() { return database.describe("SELECT tskGUIDID, tskCustSortCur FROM TASKS ORDER BY tskGUIDID"); }

  TestPlatform platform;
  TaskDatabase database;
  RecordsetPtr rst;
};

TEST_F(RecordClassesTest, eachOpensInItsModeAndProjectsAreDetached) {
  const auto dataMember = [](auto& records, RecordsetPtr& opened) { records.Class_GetDataMember("Recordset", opened); };
  const auto oneAppointment = [](clsTaskAppts& appointments, RecordsetPtr& opened) {
    appointments.SetSQLKey("SELECT * FROM TaskAPPTS");
    appointments.GetDataKEY(opened);
  };
  const Mode fixed{CursorType::fixed, LockType::batchOptimistic};
  const Mode dynamic{CursorType::dynamic, LockType::batchOptimistic};
  EXPECT_EQ(modeOf<clsSettings>(&clsSettings::GetData), fixed);
  EXPECT_EQ(modeOf<clsVLProjectsList>(&clsVLProjectsList::GetData), (Mode{fixed.cursor, fixed.lock, false}));
  EXPECT_EQ(modeOf<clsTaskAppts>(&clsTaskAppts::GetData), dynamic);
  EXPECT_EQ(modeOf<clsTaskAppts>(oneAppointment), (Mode{CursorType::fixed, LockType::pessimistic}));
  EXPECT_EQ(modeOf<clsTaskList>(&clsTaskList::GetDataKEY), dynamic);
  EXPECT_EQ(modeOf<clsTaskList>(dataMember), dynamic);
  EXPECT_EQ(modeOf<clsUtilCMD>(&clsUtilCMD::GetDataKEY), fixed);
  EXPECT_EQ(modeOf<clsUtilCMD>(dataMember), fixed);
}

TEST_F(RecordClassesTest, aTaskListServesOneStatementAndCountsOnce) {
  clsTaskList tasks;
  EXPECT_EQ(tasks.GetRowCount(), 0);
  tasks.SetSQL("SELECT * FROM TASKS");
  ASSERT_TRUE(tasks.GetDataKEY(rst));
  const RecordsetPtr first = rst;
  tasks.SetSQL("SELECT * FROM TASKS WHERE tskGUIDID = 'none'");
  EXPECT_TRUE(tasks.GetDataKEY(rst));
  EXPECT_EQ(rst, first);
  rst->AddNew();
  EXPECT_EQ(tasks.GetRowCount(), 2);
  rst->Close();
  EXPECT_FALSE(tasks.GetDataKEY(rst)) << "it is handed back closed";

  clsUtilCMD util;
  util.SetSQL("SELECT * FROM TASKS");
  ASSERT_TRUE(util.GetDataKEY(rst));
  rst->AddNew();
  EXPECT_EQ(util.GetRowCount(), 3);
}

TEST_F(RecordClassesTest, failuresAreReportedUnderTheClassAndLeaveAnEmptyRecordset) {
  clsSettings settings;
  settings.SetSQL("SELECT * FROM NoSuchTable");
  rst = std::make_shared<ado::Recordset>();
  EXPECT_FALSE(settings.GetData(rst));
  EXPECT_EQ(rst, nullptr);
  clsTaskList tasks;
  tasks.SetSQL("SELECT nothing FROM TASKS");
  EXPECT_FALSE(tasks.GetDataKEY(rst));
  tasks.UpdateBatchRST();
  tasks.SetCMDSQL("DELETE FROM NoSuchTable");
  EXPECT_EQ(tasks.doCMDExec(), 0);
  clsUtilCMD util;
  EXPECT_EQ(util.GetRowCount(), 0);
  EXPECT_EQ(reports(),
            "TarnelExportExcel clsSettings GetData -2147217900\n"
            "dllTarnel clsTaskList GetDataKEY -2147217900\n"
            "dllTarnel clsTaskList UpdateBatchRST 91\n"
            "dllTarnel clsTaskList doCMDExec -2147217900\n"
            "dllTarnel clsUtilCMD GetRowCount 91\n");
}

TEST_F(RecordClassesTest, anEmptyConnectionAloneIsLookedForAndThenFails) {
  clsUtilCMD util;
  util.SetCMDSQL("DELETE FROM TASKS");
  util.SetSQL("SELECT * FROM TASKS");
  EXPECT_TRUE(util.GetDataKEY(rst));
  EXPECT_FALSE(std::filesystem::exists(platform.applicationFolder / "TarnelSettings.txt"));

  session().theszConnect.clear();
  EXPECT_EQ(util.doCMDExec(), 0);
  EXPECT_EQ(reports(), "dllTarnel clsUtilCMD doCMDExec 3709\n");
  EXPECT_EQ(platform.desktop.messages.size(), 2U);

  std::filesystem::copy_file(database.path, platform.applicationFolder / "TarnelData.mdb");
  EXPECT_EQ(util.doCMDExec(), 2);
}

TEST_F(RecordClassesTest, commandsGiveTheNumberOfRowsAndRunAgain) {
  clsTaskList tasks;
  tasks.SetCMDSQL("UPDATE TASKS SET tskImp = 3 WHERE tskGUIDID = 'A-1'");
  EXPECT_EQ(tasks.doCMDExec(), 1);
  tasks.SetCMDSQL("DELETE from TASKS WHERE tskGUIDID = 'B-2'");
  EXPECT_EQ(tasks.doCMDExec(), 1);
  EXPECT_EQ(tasks.doCMDExec(), 0);
  EXPECT_EQ(database.describe("SELECT tskGUIDID, tskImp FROM TASKS"), "A-1|3\n");
}

TEST_F(RecordClassesTest, rowsAreReadAgainAndWritten) {
  clsTaskList tasks;
  tasks.SetSQL("SELECT * FROM TASKS ORDER BY tskGUIDID");
  ASSERT_TRUE(tasks.GetDataKEY(rst));
  rst->Fields("tskDesc").setValue("paid");
  tasks.UpdateBatchRST();
  EXPECT_EQ(database.describe("SELECT tskDesc FROM TASKS WHERE tskGUIDID = 'A-1'"), "paid\n");
  database.run("UPDATE TASKS SET tskDesc = 'theirs' WHERE tskGUIDID = 'A-1'");
  tasks.ResyncRST();
  EXPECT_EQ(rst->Fields("tskDesc").Value(), Variant("theirs"));
  database.addTask("C-3");
  tasks.RequeryRST();
  EXPECT_EQ(rst->RecordCount(), 3);
  database.addTask("D-4");
  tasks.UpdateRST();
  EXPECT_EQ(rst->RecordCount(), 4);
}

TEST_F(RecordClassesTest, customOrdersAreNumberedByTheStatementsOrder) {
  clsTaskList tasks;
  tasks.SetSQL("SELECT * FROM TASKS ORDER BY tskDesc");
  EXPECT_TRUE(tasks.ForceCustSortCurrent());
  EXPECT_EQ(order(), "A-1|2\nB-2|1\n");
  EXPECT_EQ(database.describe("SELECT tskCustSortTarnel, tskCustSortProj FROM TASKS"), "0|0\n0|0\n");
  EXPECT_TRUE(tasks.ForceCustSortTarnel());
  EXPECT_TRUE(tasks.ForceCustSortProject());
  EXPECT_EQ(database.describe("SELECT tskCustSortTarnel, tskCustSortProj FROM TASKS ORDER BY tskDesc"), "1|1\n2|2\n");

  for (const char* statement :
       {"SELECT * FROM TASKS WHERE tskGUIDID = 'none'", "no statement", "SELECT tskDesc FROM TASKS"}) {
    tasks.SetSQL(statement);
    EXPECT_TRUE(tasks.ForceCustSortCurrent()) << statement;
  }
  EXPECT_EQ(order(), "A-1|2\nB-2|1\n");
  EXPECT_EQ(reports(), "");
}

TEST_F(RecordClassesTest, tasksOpenTheDataMemberEachTimeAnyStatementOnce) {
  clsTaskList tasks;
  tasks.SetSQL("SELECT * FROM TASKS");
  tasks.Class_GetDataMember("Other", rst);
  EXPECT_EQ(rst, nullptr);
  tasks.Class_GetDataMember("Recordset", rst);
  const RecordsetPtr first = rst;
  tasks.Class_GetDataMember("Recordset", rst);
  EXPECT_NE(rst, first);
  EXPECT_EQ(first->state(), ado::State::closed);

  clsUtilCMD util;
  util.SetSQL("SELECT * FROM TASKS");
  rst.reset();
  util.Class_GetDataMember("Other", rst);
  EXPECT_EQ(rst, nullptr);
  util.Class_GetDataMember("Recordset", rst);
  const RecordsetPtr kept = std::exchange(rst, nullptr);
  util.Class_GetDataMember("Recordset", rst);
  EXPECT_EQ(rst, kept);
  EXPECT_EQ(rst->RecordCount(), 2);

  clsTaskAppts appointments;
  appointments.SetSQL("SELECT * FROM TaskAPPTS");
  ASSERT_TRUE(appointments.GetData(rst));
  const RecordsetPtr before = rst;
  EXPECT_TRUE(appointments.GetData(rst));
  EXPECT_NE(rst, before);
  EXPECT_EQ(before->state(), ado::State::open);
}

}  // namespace
}  // namespace tarnel::test
