#include "TransferTest.h"

namespace tarnel {
namespace {

class ImportTasks : public TransferTest {
 protected:
  ImportTasks() {
    session().theOutlookProjectKey = "OUT";
    session().theOutlookProjectName = "From Outlook";
  }
  void pick(const std::string& key) {
    SmartItem& item = lists_.smtSkedPickTasks.Items().Item("TASKPICK");
    lists_.smtSkedPickTasks.choose(item, item.SubItems().Item(key));
  }
  void import() {
    checkAll(lists_.outlookList);
    EXPECT_TRUE(MakeUpdateOutlookTasksInTarnel(lists_));
  }
};

TEST_F(ImportTasks, anUnlinkedItemBecomesALinkedTask) {
  const auto made = makeItem("Call & write");
  made->setDueDate(Date::of(2026, 12, 1));
  made->setTotalWork(130);
  made->setImportance(outlook::Importance::high);
  made->Save();
  fill();
  import();
  EXPECT_EQ(lastMessage(), "Tasks created: 1. Tasks in Tarnel updated: 0.");
  EXPECT_EQ(stored("tskDesc, tskStatus, tskImp, tskDeadline, tskTimeNeeded, tskTimeSpent, tskCurrent, tskProject, "
                   "tskProjectKey, tskHasNotes, tskPossPoints, tskCreatedDate, tskLastMod"),
            "Call & write|3|4|2026-12-01 00:00:00|130|0|True|From Outlook|OUT|False|315|2026-11-19 08:30:00|"
            "2026-11-19 08:30:00\n");
  const std::string guid = database_.describe("SELECT tskGUIDID FROM TASKS").substr(0, 36);
  EXPECT_EQ(stored("tskOUTEntityID"), guid + "\n");
  EXPECT_EQ(describe(), "Call & write|0|2|2026-12-01|130|0|" + guid + "\n");
  EXPECT_EQ(shown(lists_.outlookList), "Call & write|Tarnel\n");
  EXPECT_EQ(shown(lists_.tarnelList), "Call && write|OUTLOOK\n");
}

TEST_F(ImportTasks, theSecondRunUpdatesWhatTheFirstMade) {
  makeItem("Once");
  fill();
  import();
  item(1)->setSubject("unsaved");
  const auto changed = item(1);
  changed->setSubject("Renamed");
  changed->setStatus(outlook::TaskStatus::waiting);
  changed->Save();
  import();
  EXPECT_EQ(lastMessage(), "Tasks created: 0. Tasks in Tarnel updated: 1.");
  EXPECT_EQ(stored("tskDesc, tskStatus, tskTimeNeeded"), "Renamed|3|10\n");
}

TEST_F(ImportTasks, thePickDecidesWhereANewTaskLands) {
  for (const char* key : {"T01", "P1"}) {
    database_.run("DELETE FROM TASKS");
    for (std::int32_t i = tasks()->Count(); i > 0; --i) item(i)->Delete();
    makeItem("Placed");
    fill();
    pick(key);
    import();
    EXPECT_EQ(stored("tskProject, tskProjectKey, tskCurrent"),
              key == std::string("P1") ? "Garden|P1|False\n" : "From Outlook|OUT|False\n");
  }
}

TEST_F(ImportTasks, aTaskOutsideThePickOrGoneIsPassedOver) {
  addTask("A", "Hidden");
  database_.run("UPDATE TASKS SET tskCurrent = FALSE WHERE tskGUIDID = 'A'");
  makeItem("From outside", "A");
  makeItem("Orphan", "GONE");
  makeItem("Hostile", "x' OR '1'='1");
  fill();
  import();
  EXPECT_EQ(lastMessage(), "Tasks created: 0. Tasks in Tarnel updated: 0.");
  EXPECT_EQ(stored("tskDesc"), "Hidden\n");
  for (const SmartItem& row : lists_.outlookList.Items()) EXPECT_FALSE(row.Checked());
}

TEST_F(ImportTasks, anItemGoneStopsTheRunAndKeepsWhatWasDone) {
  makeItem("First");
  makeItem("Second");
  fill();
  item(2)->Delete();
  folder(outlook::DefaultFolder::deletedItems)->Item(1)->Delete();
  checkAll(lists_.outlookList);
  EXPECT_FALSE(MakeUpdateOutlookTasksInTarnel(lists_));
  EXPECT_EQ(platform_.errorReport.reports.at(0).procedure, "MakeUpdateOutlookTasksInTarnel");
  EXPECT_EQ(stored("tskDesc"), "First\n");
}

}  // namespace
}  // namespace tarnel
