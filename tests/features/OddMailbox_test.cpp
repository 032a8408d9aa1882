#include "Story.h"

namespace tarnel::test {
namespace {

class OddMailbox : public Story {};

TEST_F(OddMailbox, outlookOutOfReachIsToldAndTheWizardStaysOpen) {
  addTask("A", "Still here");
  run.home.write(mailboxFile, "no mailbox");
  const test::ProgramResult result = drive("list smtTaskList(0)\n");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_NE(told(result).find("says: Unable to access Outlook"), std::string::npos) << told(result);
  EXPECT_EQ(result.reply("list")["items"].size(), 1U);
}

TEST_F(OddMailbox, linkPropertyThatLeadsNowhereTouchesNoRow) {
  addTask("A", "Kept", {{"tskOutEntityID", "'A'"}});
  drive("");
  const std::string before = wholeDatabase();
  const std::string values[] = {"", "x' OR '1'='1", "A'; DROP TABLE TASKS; --", "\"A\"", std::string(100000, 'g')};
  for (const std::string& value : values) {
    addItem("Odd", value);
    for (const char* action : {"UPDATE", "MARKASDONE", "DELETE"}) {
      drive("answer yes\n" + onAll("1", action));
      EXPECT_EQ(wholeDatabase(), before) << action << " " << value.substr(0, 30);
    }
  }
}

TEST_F(OddMailbox, notesOfFiveMegabytesComeWhole) {
  const std::string line(50, 'n');
  std::string folded = "DESCRIPTION:";
  for (int i = 0; i < 100000; ++i) folded += line + "\r\n ";
  addItem("Long", {}, folded + "end\r\n");
  EXPECT_EQ(told(onAll("1", "UPDATE")).substr(0, 23), "says: Tasks created: 1.");
  EXPECT_EQ(rows("SELECT LENGTH(tskNotes) FROM TASKS"), "5000003\n");
}

TEST_F(OddMailbox, readOnlyInTheMiddleKeepsWhatWasWrittenAndHealsAtTheNextRun) {
  namespace fs = std::filesystem;
  addItem("Another");
  addTask("A", "First");
  addTask("B", "Second");
  OpenWizard wizard(run.shellCommand(drivingArguments));
  wizard("check smtTaskList(0) A on");
  wizard("click smtTaskActions(0) UPDATE");
  fs::permissions(run.home / mailboxFile, fs::perms::owner_read);
  wizard("check smtTaskList(0) B on");
  const std::string stopped = told(wizard("click smtTaskActions(0) UPDATE"));
  EXPECT_NE(stopped.find("says: Unable to access Outlook"), std::string::npos) << stopped;
  fs::permissions(run.home / mailboxFile, fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(rows("SELECT tskGUIDID, tskOutEntityID FROM TASKS ORDER BY tskGUIDID"), "A|A\nB|-\n");
  EXPECT_EQ(mailbox(), "Tasks|Another|0|-\nTasks|First|0|A\n");

  EXPECT_EQ(told(onAll("0", "UPDATE")), "says: Outlook Tasks created: 1. Tasks in Outlook updated: 1.\nreturned\n");
  EXPECT_EQ(mailbox(), "Tasks|Another|0|-\nTasks|First|0|A\nTasks|Second|0|B\n");
}

}  // namespace
}  // namespace tarnel::test
