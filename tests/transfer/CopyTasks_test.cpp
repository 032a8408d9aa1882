#include "TransferTest.h"

namespace tarnel {
namespace {

using CopyTasks = TransferTest;

TEST_F(CopyTasks, firstCopyMakesLinkedItemsOfTheCheckedRowsAlone) {
  addTask("A", "Cut & dry");
  addTask("B", "Left alone");
  database_.run(
      "UPDATE TASKS SET tskDeadline = '2026-12-24 08:00:00', tskStatus = 2, tskImp = 3, tskTimeNeeded = 90, "
      "tskTimeSpent = 15, tskNotes = 'private' WHERE tskGUIDID = 'A'");
  fill();
  check(lists_.tarnelList, {"A"});
  EXPECT_TRUE(Tarnel2OUTTasks(lists_));
  EXPECT_EQ(describe(), "Cut & dry|3|2|2026-12-24|90|15|A\n");
  EXPECT_EQ(item(1)->body(), "");
  EXPECT_EQ(stored("tskGUIDID, tskOUTEntityID"), "A|A\nB|-\n");
  EXPECT_EQ(lastMessage(), "Outlook Tasks created: 1. Tasks in Outlook updated: 0.");
  EXPECT_EQ(shown(lists_.outlookList), "Cut & dry|Tarnel\n");
  EXPECT_EQ(lists_.tarnelList.Items().Item("A").Picture(), "OUTLOOK");
  EXPECT_FALSE(lists_.tarnelList.Items().Item("A").Checked());
  EXPECT_EQ(session().theOutlookNS, nullptr);
}

TEST_F(CopyTasks, valuesOutsideTheMappingKeepWhatOutlookHolds) {
  addTask("A", "Odd");
  database_.run("UPDATE TASKS SET tskStatus = 1, tskDeadline = '2026-12-01 00:00:00' WHERE tskGUIDID = 'A'");
  fill();
  checkAll(lists_.tarnelList);
  Tarnel2OUTTasks(lists_);
  database_.run("UPDATE TASKS SET tskStatus = 4, tskDeadline = NULL, tskTimeNeeded = NULL WHERE tskGUIDID = 'A'");
  database_.run("UPDATE TASKS SET tskDeadline = '1899-12-31 00:00:00', tskTimeNeeded = 7 WHERE tskGUIDID = 'A'");
  fill();
  checkAll(lists_.tarnelList);
  Tarnel2OUTTasks(lists_);
  EXPECT_EQ(describe(), "Odd|1|0|2026-12-01|7|0|A\n");
}

TEST_F(CopyTasks, secondCopyInOneViewMakesASecondItemAndTheWalkThenUpdatesBoth) {
  addTask("A", "Twice");
  fill();
  for (int run = 0; run < 2; ++run) {
    checkAll(lists_.tarnelList);
    Tarnel2OUTTasks(lists_);
  }
  EXPECT_EQ(tasks()->Count(), 2);
  database_.run("UPDATE TASKS SET tskDesc = 'Both' WHERE tskGUIDID = 'A'");
  fill();
  checkAll(lists_.tarnelList);
  Tarnel2OUTTasks(lists_);
  EXPECT_EQ(describe(), "Both|1|0|4501-01-01|0|0|A\nBoth|1|0|4501-01-01|0|0|A\n");
  EXPECT_EQ(lastMessage(), "Outlook Tasks created: 0. Tasks in Outlook updated: 2.");
  EXPECT_EQ(shown(lists_.outlookList), "Both|Tarnel\nBoth|Tarnel\n");
}

TEST_F(CopyTasks, anItemDeletedInOutlookIsMadeAnew) {
  addTask("A", "Back again");
  makeItem("Another one");
  fill();
  check(lists_.tarnelList, {"A"});
  Tarnel2OUTTasks(lists_);
  item(2)->Delete();
  fill();
  check(lists_.tarnelList, {"A"});
  EXPECT_TRUE(Tarnel2OUTTasks(lists_));
  EXPECT_EQ(lastMessage(), "Outlook Tasks created: 1. Tasks in Outlook updated: 0.");
  EXPECT_EQ(tasks()->Count(), 2);
  EXPECT_EQ(folder(outlook::DefaultFolder::deletedItems)->Count(), 1);
}

TEST_F(CopyTasks, aLinkedRowCannotBeLookedUpInAnEmptyFolder) {
  addTask("A");
  database_.run("UPDATE TASKS SET tskOUTEntityID = 'A' WHERE tskGUIDID = 'A'");
  fill();
  checkAll(lists_.tarnelList);
  EXPECT_FALSE(Tarnel2OUTTasks(lists_));
  ASSERT_EQ(platform_.errorReport.reports.size(), 1U);
  EXPECT_EQ(platform_.errorReport.reports[0].procedure, "Tarnel2OUTTasks");
  EXPECT_TRUE(lists_.tarnelList.Items().Item("A").Checked());
  EXPECT_EQ(lastMessage(), "");
}

TEST_F(CopyTasks, aTaskGoneFromTheDatabaseIsPassedOver) {
  addTask("A");
  addTask("B");
  fill();
  database_.run("DELETE FROM TASKS WHERE tskGUIDID = 'A'");
  checkAll(lists_.tarnelList);
  EXPECT_TRUE(Tarnel2OUTTasks(lists_));
  EXPECT_EQ(lastMessage(), "Outlook Tasks created: 1. Tasks in Outlook updated: 0.");
}

TEST_F(CopyTasks, nothingCheckedIsToldAndOutlookOutOfReachChangesNothing) {
  addTask("A");
  fill();
  EXPECT_TRUE(Tarnel2OUTTasks(lists_));
  EXPECT_EQ(lastMessage(), "Outlook Tasks created: 0. Tasks in Outlook updated: 0.");
  session().theOutlookProfile = "Nobody";
  checkAll(lists_.tarnelList);
  EXPECT_FALSE(Tarnel2OUTTasks(lists_));
  EXPECT_EQ(lastMessage(), "Unable to access Outlook. Outlook may be busy, or in an unresponsive state.");
  EXPECT_EQ(stored("tskOUTEntityID"), "-\n");
  EXPECT_TRUE(lists_.tarnelList.Items().Item("A").Checked());
}

TEST_F(CopyTasks, aDeadlineThatOutlookRefusesIsPassedOver) {
  addTask("A", "Far off");
  database_.run("UPDATE TASKS SET tskDeadline = '9999-12-31 00:00:00' WHERE tskGUIDID = 'A'");
  fill();
  checkAll(lists_.tarnelList);
  EXPECT_TRUE(Tarnel2OUTTasks(lists_));
  EXPECT_EQ(item(1)->dueDate(), Date::of(4501, 1, 1));
}

}  // namespace
}  // namespace tarnel
