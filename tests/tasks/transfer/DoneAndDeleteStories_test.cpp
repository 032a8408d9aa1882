#include "Story.h"

namespace tarnel::test {
namespace {

const std::string yes = "answer yes\n";
const std::string proceed = "//Proceed? yes\n";

// Each store with a linked pair, one of its own, and one whose other half has gone.
struct DoneAndDeleteStories : Story {
  DoneAndDeleteStories() {
    addTask("A", "Linked", {{"tskOutEntityID", "'A'"}, {"tskTimeNeeded", "90"}, {"tskTimeSpent", "30"}});
    addTask("B", "Own");
    addTask("C", "Item gone", {{"tskOutEntityID", "'C'"}});
    addItem("Linked", "A");
    addItem("Outlook's own");
    addItem("Task gone", "GONE");
    change("INSERT INTO TASKKEYWORDS VALUES ('A', 'k')");
    change("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID) VALUES ('TA', 'B')");
  }
  std::string tasks() { return rows("SELECT tskGUIDID, tskStatus, tskOutEntityID FROM TASKS ORDER BY tskGUIDID"); }
  std::string undated() { return rows("SELECT tskGUIDID FROM TASKS WHERE tskStatus = 0 AND tskDoneDate Is Null"); }

  const std::string tasksBefore = "A|3|A\nB|3|-\nC|3|C\n";
  const std::string mailboxBefore = "Tasks|Linked|0|A\nTasks|Outlook's own|0|-\nTasks|Task gone|0|GONE\n";
};

TEST_F(DoneAndDeleteStories, doneInTarnelIsDoneForEveryTaskAndItsItems) {
  const auto result = drive(onAll("0", "MARKASDONE") + "list smtTaskList(0)\n");
  EXPECT_EQ(told(result), "returned\n") << "it neither asks nor counts";
  EXPECT_TRUE(result.reply("list")["items"].empty());
  EXPECT_EQ(tasks(), "A|0|A\nB|0|-\nC|0|C\n");
  EXPECT_EQ(undated(), "");
  EXPECT_EQ(mailbox(), "Tasks|Linked|2|A\nTasks|Outlook's own|0|-\nTasks|Task gone|0|GONE\n");
  EXPECT_EQ(valuesOf(items()[0], {"totalWork", "actualWork"}), "90|30|");
}

TEST_F(DoneAndDeleteStories, doneCompletesTheItemOfACopyMadeInTheSameView) {
  drive(
      "check smtTaskList(0) B on\nclick smtTaskActions(0) UPDATE\ncheck smtTaskList(0) B on\n"
      "click smtTaskActions(0) MARKASDONE\n");
  EXPECT_EQ(tasks(), "A|3|A\nB|0|B\nC|3|C\n");
  EXPECT_EQ(mailbox(), mailboxBefore + "Tasks|Own|2|B\n");
}

// A row that fails is passed over, and leaves nothing for the batch of the next one.
TEST_F(DoneAndDeleteStories, rowThatFailsKeepsNoOtherFromItsTurn) {
  addTask("D", "Second", {{"tskOutEntityID", "'D'"}});
  addItem("Second", "D");
  OpenWizard wizard(run.shellCommand(drivingArguments));
  wizard("answer yes");
  wizard("click smtTaskActions(1) ALL");
  change("UPDATE TASKS SET tskStatus = 1 WHERE tskGUIDID = 'A'");
  wizard("click smtTaskActions(1) MARKASDONE");
  EXPECT_EQ(tasks(), "A|1|A\nB|3|-\nC|3|C\nD|0|D\n");
  EXPECT_EQ(mailbox(), "Tasks|Linked|0|A\nTasks|Outlook's own|2|-\nTasks|Task gone|2|GONE\nTasks|Second|2|D\n");
}

TEST_F(DoneAndDeleteStories, doneInOutlookCompletesBothSidesAfterItsQuestion) {
  EXPECT_EQ(told(yes + onAll("1", "MARKASDONE")),
            "asks: One Outlook Task selected. It will be marked as done in Outlook.//Tarnel-based Tasks selected: 2 . "
            "They will be marked as done in both Outlook and Tarnel." +
                proceed + "returned\n");
  EXPECT_EQ(tasks(), "A|0|A\nB|3|-\nC|3|C\n");
  EXPECT_EQ(undated(), "");
  EXPECT_EQ(mailbox(), "Tasks|Linked|2|A\nTasks|Outlook's own|2|-\nTasks|Task gone|2|GONE\n");
}

TEST_F(DoneAndDeleteStories, deleteInTarnelTakesTheTasksWithAllThatHangsOnThem) {
  EXPECT_EQ(told(yes + onAll("0", "DELETE")),
            "asks: Tarnel tasks marked for deletion: 3. Delete these tasks? yes\nreturned\n");
  EXPECT_EQ(tasks() + rows("SELECT * FROM TASKKEYWORDS") + rows("SELECT * FROM TASKAPPTS"), "");
  EXPECT_EQ(mailbox(), "Deleted Items|Linked|2|A\nTasks|Outlook's own|0|-\nTasks|Task gone|0|GONE\n");
}

TEST_F(DoneAndDeleteStories, deleteInOutlookCutsTheLinkAndKeepsTheTask) {
  const std::string commands = yes + onAll("1", "DELETE");
  EXPECT_EQ(told(commands),
            "asks: One Outlook Task selected. It will be deleted in Outlook.//Tarnel-based Tasks selected: 2 . They "
            "will be deleted from Outlook but not from Tarnel." +
                proceed + "returned\n");
  EXPECT_EQ(tasks(), "A|3|-\nB|3|-\nC|3|C\n");
  EXPECT_EQ(mailbox(), "Deleted Items|Linked|0|A\nDeleted Items|Outlook's own|0|-\nDeleted Items|Task gone|0|GONE\n");
  EXPECT_EQ(listed("0"), "Linked|NONE\nOwn|NONE\nItem gone|OUTLOOK\n");
  EXPECT_EQ(listed("1"), "");
}

TEST_F(DoneAndDeleteStories, rowsAreCountedByKindAndAnItemGoneIsPassedOver) {
  addItem("Own too");
  change("DELETE FROM TASKS WHERE tskGUIDID = 'C'");
  OpenWizard wizard(run.shellCommand(drivingArguments));
  wizard("answer yes");
  wizard("click smtTaskActions(1) ALL");
  const std::string entry = entryOf("Linked");
  for (int i = 0; i < 2; ++i) run("mailbox delete " + entry);
  EXPECT_EQ(
      told(wizard("click smtTaskActions(1) MARKASDONE")),
      "asks: Outlook Tasks selected: 2 . They will be marked as done in Outlook.//Tarnel-based Tasks selected: 2 . "
      "They will be marked as done in both Outlook and Tarnel." +
          proceed);
  EXPECT_EQ(tasks(), "A|3|A\nB|3|-\n");
  EXPECT_EQ(mailbox(), "Tasks|Outlook's own|2|-\nTasks|Task gone|2|GONE\nTasks|Own too|2|-\n");
}

TEST_F(DoneAndDeleteStories, everyItemThatBearsTheKeyGoesTogether) {
  addItem("Linked twice", "A");
  for (const char* action : {"MARKASDONE", "DELETE"}) {
    drive(yes + "choose smtSkedPickTasks SORTPICK \"Completed Tasks\"\n" + onAll("0", action));
    for (const auto& item : items())
      if (item["userProperties"].value("BrackwellTarnelGUID", "") == "A") {
        EXPECT_EQ(item["status"], 2);
        EXPECT_EQ(item["folder"] == "Deleted Items", action == std::string("DELETE"));
      }
  }
}

TEST_F(DoneAndDeleteStories, aNoOrNothingCheckedLeavesBothStoresAsTheyWere) {
  const std::string none = "click smtTaskActions(0) NONE\nclick smtTaskActions(1) NONE\n";
  const char* commands[][3] = {
      {"1", "MARKASDONE", "No Outlook Tasks or Tarnel-based Tasks selected to marked as done."},
      {"1", "DELETE", "No Outlook Tasks or Tarnel-based Tasks selected to delete."},
      {"0", "DELETE", "Tarnel tasks marked for deletion: 0"}};
  for (const auto& [side, action, toldNone] : commands) {
    EXPECT_EQ(told("answer no\n" + onAll(side, action)).substr(0, 5), "asks:");
    EXPECT_EQ(told(none + "click smtTaskActions(" + side + ") " + action + "\n"),
              "says: " + std::string(toldNone) + "\nreturned\n");
  }
  EXPECT_EQ(tasks(), tasksBefore);
  EXPECT_EQ(mailbox(), mailboxBefore);
}

TEST_F(DoneAndDeleteStories, outlookGoneBetweenTwoCommandsLosesNothing) {
  struct Command {
    const char* side;
    const char* action;
    const char* told;  // after the general message
  };
  const Command commands[] = {{"0", "MARKASDONE", "says: Unable to access Outlook"},
                              {"0", "DELETE", "says: Unable to access Outlook"},
                              {"1", "MARKASDONE", "reports: MarkOutlookTasksAsDone 440"},
                              {"1", "DELETE", "reports: MarkOutlookTasksAsDeleted 440"},
                              {"1", "UPDATE", "reports: MakeUpdateOutlookTasksInTarnel 440"}};
  for (const Command& command : commands) {
    OpenWizard wizard(run.shellCommand(drivingArguments));
    const std::string bar = "click smtTaskActions(" + std::string(command.side) + ") ";
    wizard("answer yes");
    wizard(bar + "ALL");
    std::filesystem::rename(run.home / mailboxFile, run.home / "away");
    const std::string text = told(wizard(bar + command.action));
    EXPECT_NE(text.find(command.told), std::string::npos) << command.action << ": " << text;
    std::filesystem::rename(run.home / "away", run.home / mailboxFile);
  }
  EXPECT_EQ(tasks(), tasksBefore);
  EXPECT_EQ(mailbox(), mailboxBefore);
}

}  // namespace
}  // namespace tarnel::test
