#include "Story.h"

namespace tarnel::test {
namespace {

class CopyStories : public Story {};

const std::string copy = onAll("0", "UPDATE");
const std::string toldCopied = "says: Outlook Tasks created: 1. Tasks in Outlook updated: 0.\n";
const std::string toldUpdated = "says: Outlook Tasks created: 0. Tasks in Outlook updated: 1.\n";

TEST_F(CopyStories, firstCopyCarriesTheFieldsAndLeavesTheRest) {
  addTask("A", "Pay & sign",
          {{"tskStatus", "1"},
           {"tskImp", "4"},
           {"tskDeadline", "'2026-12-01 00:00:00'"},
           {"tskTimeNeeded", "90"},
           {"tskTimeSpent", "30"},
           {"tskNotes", "'private'"}});
  addTask("B", "Elsewhere", {{"tskCurrent", "0"}});
  const auto result = drive(copy + "list smtTaskList(0)\n" + copy.substr(copy.find("click smtTaskActions(0) UPDATE")));
  EXPECT_EQ(told(result), toldCopied + "says: Outlook Tasks created: 0. Tasks in Outlook updated: 0.\nreturned\n");
  EXPECT_EQ(valuesOf(result.reply("list")["items"][0], {"caption", "picture", "checked"}),
            "Pay && sign|OUTLOOK|false|");
  EXPECT_EQ(mailbox(), "Tasks|Pay & sign|1|A\n");
  EXPECT_EQ(valuesOf(items()[0], {"importance", "dueDate", "totalWork", "actualWork", "body"}),
            "2|2026-12-01 00:00:00|90|30||");
  EXPECT_EQ(rows("SELECT tskGUIDID, tskOutEntityID FROM TASKS ORDER BY tskGUIDID"), "A|A\nB|-\n");
}

TEST_F(CopyStories, secondCopyInOneViewMakesASecondItemAndARefillUpdatesBoth) {
  addTask("A", "Twice");
  const std::string commands = copy + copy + pickAll + copy;
  EXPECT_EQ(told(commands),
            toldCopied + toldCopied + "says: Outlook Tasks created: 0. Tasks in Outlook updated: 2.\n" + "returned\n");
  EXPECT_EQ(mailbox(), "Tasks|Twice|0|A\nTasks|Twice|0|A\n");
}

TEST_F(CopyStories, updateOverwritesFieldsAndKeepsARemovedDeadline) {
  addTask("A", "Old", {{"tskDeadline", "'2026-12-01 00:00:00'"}});
  OpenWizard wizard(run.shellCommand(drivingArguments));
  wizard("click smtTaskActions(0) ALL");
  EXPECT_EQ(told(wizard("click smtTaskActions(0) UPDATE")), toldCopied);
  change("UPDATE TASKS SET tskDesc = 'New', tskStatus = 2, tskDeadline = Null");
  wizard("choose smtSkedPickTasks TASKPICK Tarnel");
  wizard("click smtTaskActions(0) ALL");
  EXPECT_EQ(told(wizard("click smtTaskActions(0) UPDATE")), toldUpdated);
  EXPECT_EQ(mailbox(), "Tasks|New|3|A\n");
  EXPECT_EQ(items()[0]["dueDate"], "2026-12-01 00:00:00");
}

TEST_F(CopyStories, negativeMinutesTravelAsTheyAre) {
  addTask("A", "Owes time", {{"tskTimeNeeded", "-5"}, {"tskTimeSpent", "-2147483647"}});
  EXPECT_EQ(told(copy), toldCopied + "returned\n");
  EXPECT_EQ(valuesOf(items()[0], {"totalWork", "actualWork"}), "-5|-2147483647|");
}

TEST_F(CopyStories, taskLinkedByAnotherWizardSinceTheFillIsUpdated) {
  addTask("A", "Once");
  addItem("Another");
  OpenWizard wizard(run.shellCommand(drivingArguments));
  wizard("click smtTaskActions(0) ALL");
  EXPECT_EQ(told(copy), toldCopied + "returned\n");
  EXPECT_EQ(told(wizard("click smtTaskActions(0) UPDATE")), toldUpdated);
  EXPECT_EQ(mailbox(), "Tasks|Another|0|-\nTasks|Once|0|A\n");
}

TEST_F(CopyStories, taskGoneFromTheDatabaseIsPassedOver) {
  addTask("A", "Goes");
  addTask("L", "Linked", {{"tskOutEntityID", "'L'"}});
  addTask("M", "Linked without its item", {{"tskOutEntityID", "'M'"}});
  addTask("Z", "Stays");
  addItem("Still the same", "L");
  OpenWizard wizard(run.shellCommand(drivingArguments));
  wizard("click smtTaskActions(0) ALL");
  change("DELETE FROM TASKS WHERE tskGUIDID <> 'Z'");
  EXPECT_EQ(told(wizard("click smtTaskActions(0) UPDATE")), toldCopied);
  EXPECT_EQ(mailbox(), "Tasks|Still the same|0|L\nTasks|Stays|0|Z\n");
}

TEST_F(CopyStories, itemDeletedInOutlookIsMadeAgain) {
  addTask("A", "Missed");
  addItem("Another");
  EXPECT_EQ(told(copy), toldCopied + "returned\n");
  run("mailbox delete " + entryOf("Missed"));
  EXPECT_EQ(told(copy), toldCopied + "returned\n");
  EXPECT_EQ(mailbox(), "Tasks|Another|0|-\nDeleted Items|Missed|0|A\nTasks|Missed|0|A\n");
  EXPECT_EQ(told(copy), toldUpdated + "returned\n");
}

TEST_F(CopyStories, itemMovedAwayAndBackIsTwoItemsThatAreBothUpdated) {
  addTask("A", "Moved");
  addItem("Another");
  drive(copy);
  const std::string entry = entryOf("Moved");
  run("mailbox move " + entry + " 'Deleted Items'");
  EXPECT_EQ(told(copy), toldCopied + "returned\n");
  run("mailbox move " + entry + " Tasks");
  change("UPDATE TASKS SET tskStatus = 1");
  EXPECT_EQ(told(copy), "says: Outlook Tasks created: 0. Tasks in Outlook updated: 2.\nreturned\n");
  EXPECT_EQ(mailbox(), "Tasks|Another|0|-\nTasks|Moved|1|A\nTasks|Moved|1|A\n");
}

TEST_F(CopyStories, linkedTaskCannotBeLookedUpInAnEmptyFolder) {
  addTask("A", "Alone", {{"tskOutEntityID", "'A'"}});
  const ProgramResult result = drive(copy);
  EXPECT_EQ(told(result).find("reports: Tarnel2OUTTasks"), 0U) << told(result);
  EXPECT_NE(result.errors.find("Outlook's Tasks folder is empty"), std::string::npos) << result.errors;
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(mailbox(), "");
}

TEST_F(CopyStories, outlookGoneBetweenTwoCommandsIsToldAndComesBack) {
  addTask("A", "Patient");
  addItem("Another");
  OpenWizard wizard(run.shellCommand(drivingArguments));
  const auto away = run.home / "away";
  wizard("click smtTaskActions(0) ALL");
  std::filesystem::rename(run.home / mailboxFile, away);
  const std::string toldGone = told(wizard("click smtTaskActions(0) UPDATE"));
  EXPECT_NE(toldGone.find("says: Unable to access Outlook. Outlook may be busy"), std::string::npos) << toldGone;
  EXPECT_FALSE(std::filesystem::exists(run.home / mailboxFile)) << "a mailbox is never made on the way";
  EXPECT_EQ(rows("SELECT tskOutEntityID FROM TASKS"), "-\n");
  EXPECT_TRUE(wizard("list smtTaskList(0)").back()["items"][0]["checked"]);

  std::filesystem::rename(away, run.home / mailboxFile);
  EXPECT_EQ(told(wizard("click smtTaskActions(0) UPDATE")), toldCopied);
  EXPECT_EQ(mailbox(), "Tasks|Another|0|-\nTasks|Patient|0|A\n");
}

}  // namespace
}  // namespace tarnel::test
