#include "TransferTest.h"

namespace tarnel {
namespace {

class DoneAndDelete : public TransferTest {
 protected:
  // A linked with its item, B not linked, and an item of Outlook's own.
  DoneAndDelete() {
    addTask("A", "Linked");
    addTask("B", "Alone");
    database_.run("UPDATE TASKS SET tskOUTEntityID = 'A', tskTimeNeeded = 90, tskTimeSpent = 30 WHERE tskGUIDID = 'A'");
    database_.run("INSERT INTO TASKKEYWORDS (ktTASKGUID, ktKeyword) VALUES ('A', 'home')");
    database_.run("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID) VALUES ('X', 'A')");
    makeItem("Linked", "A");
    makeItem("Own");
    fill();
  }
};

TEST_F(DoneAndDelete, doneFromOutlookCompletesBothSides) {
  checkAll(lists_.outlookList);
  answer(MessageAnswer::yes);
  EXPECT_TRUE(MarkOutlookTasksAsDone(lists_));
  EXPECT_EQ(
      lastMessage(),
      "One Outlook Task selected. It will be marked as done in Outlook.\r\n\r\nOne Tarnel-based Task selected. It "
      "will be marked as done in both Outlook and Tarnel.\r\n\r\nProceed?");
  EXPECT_EQ(stored("tskGUIDID, tskStatus, tskDoneDate"), "A|0|2026-11-19 08:30:00\nB|1|-\n");
  EXPECT_EQ(describe(), "Linked|2|1|4501-01-01|0|0|A\nOwn|2|1|4501-01-01|0|0|-\n");
  EXPECT_EQ(shown(lists_.tarnelList), "Alone|NONE\n");
  EXPECT_EQ(shown(lists_.outlookList), "");
}

TEST_F(DoneAndDelete, severalRowsAreCountedByKind) {
  makeItem("Own too");
  makeItem("Linked too", "A");
  lists_.GetOutlookTasks();
  checkAll(lists_.outlookList);
  EXPECT_FALSE(MarkOutlookTasksAsDeleted(lists_));
  EXPECT_EQ(lastMessage(),
            "Outlook Tasks selected: 2 . They will be deleted in Outlook.\r\n\r\nTarnel-based Tasks selected: 2 . They "
            "will be deleted from Outlook but not from Tarnel.\r\n\r\nProceed?");
  EXPECT_EQ(tasks()->Count(), 4);
}

TEST_F(DoneAndDelete, nothingCheckedIsToldWithoutAQuestion) {
  EXPECT_FALSE(MarkOutlookTasksAsDone(lists_));
  EXPECT_EQ(lastMessage(), "No Outlook Tasks or Tarnel-based Tasks selected to marked as done.");
  EXPECT_FALSE(MarkOutlookTasksAsDeleted(lists_));
  EXPECT_EQ(lastMessage(), "No Outlook Tasks or Tarnel-based Tasks selected to delete.");
  EXPECT_FALSE(MarkTarnelTasksAsDeleted(lists_));
  EXPECT_EQ(lastMessage(), "Tarnel tasks marked for deletion: 0");
}

TEST_F(DoneAndDelete, anItemGoneIsPassedOverAndItsTaskStaysOpen) {
  item(1)->Delete();
  folder(outlook::DefaultFolder::deletedItems)->Item(1)->Delete();
  checkAll(lists_.outlookList);
  answer(MessageAnswer::yes);
  EXPECT_TRUE(MarkOutlookTasksAsDone(lists_));
  EXPECT_EQ(stored("tskStatus"), "1\n1\n");
  EXPECT_EQ(describe(), "Own|2|1|4501-01-01|0|0|-\n");
}

TEST_F(DoneAndDelete, doneFromTarnelCompletesAllItemsAndUnlinkedTasksToo) {
  makeItem("Linked too", "A");
  lists_.GetOutlookTasks();
  checkAll(lists_.tarnelList);
  EXPECT_TRUE(MarkTarnelTasksAsDone(lists_));
  EXPECT_EQ(describe(), "Linked|2|1|4501-01-01|90|30|A\nOwn|0|1|4501-01-01|0|0|-\nLinked too|2|1|4501-01-01|90|30|A\n");
  EXPECT_EQ(stored("tskStatus, tskDoneDate"), "0|2026-11-19 08:30:00\n0|2026-11-19 08:30:00\n");
  EXPECT_EQ(shown(lists_.outlookList), "Own|OUTLOOK\n");
  EXPECT_TRUE(platform_.desktop.messages.empty());
}

TEST_F(DoneAndDelete, deletingFromOutlookCutsTheLinkAndKeepsTheTask) {
  checkAll(lists_.outlookList);
  answer(MessageAnswer::yes);
  EXPECT_TRUE(MarkOutlookTasksAsDeleted(lists_));
  EXPECT_EQ(tasks()->Count(), 0);
  EXPECT_EQ(folder(outlook::DefaultFolder::deletedItems)->Count(), 2);
  EXPECT_EQ(stored("tskGUIDID, tskOUTEntityID, tskStatus"), "A|-|1\nB|-|1\n");
  EXPECT_EQ(shown(lists_.tarnelList), "Linked|NONE\nAlone|NONE\n");
}

TEST_F(DoneAndDelete, deletingFromTarnelTakesTheRowsAndCompletesTheItemsFirst) {
  addTask("C''); DELETE FROM TASKS; --", "Hostile");
  lists_.refillTarnelList();
  checkAll(lists_.tarnelList);
  lists_.tarnelList.Items().Item("B").setChecked(false);
  answer(MessageAnswer::yes);
  EXPECT_TRUE(MarkTarnelTasksAsDeleted(lists_));
  EXPECT_EQ(lastMessage(), "Tarnel tasks marked for deletion: 2. Delete these tasks?");
  EXPECT_EQ(stored("tskGUIDID"), "B\n");
  EXPECT_EQ(database_.describe("SELECT ktKeyword FROM TASKKEYWORDS"), "");
  EXPECT_EQ(database_.describe("SELECT taGUIDID FROM TASKAPPTS"), "");
  EXPECT_EQ(describe(outlook::DefaultFolder::deletedItems), "Linked|2|1|4501-01-01|90|30|A\n");
  EXPECT_EQ(shown(lists_.outlookList), "Own|OUTLOOK\n");
}

TEST_F(DoneAndDelete, aNoLeavesEverythingAsItWas) {
  checkAll(lists_.tarnelList);
  answer(MessageAnswer::no);
  EXPECT_FALSE(MarkTarnelTasksAsDeleted(lists_));
  EXPECT_EQ(stored("tskGUIDID"), "A\nB\n");
  EXPECT_EQ(tasks()->Count(), 2);
}

}  // namespace
}  // namespace tarnel
