#include "Story.h"

namespace tarnel::test {
namespace {

struct ImportStories : Story {
  ImportStories() {
    change("INSERT INTO PROJECTS VALUES ('P1', 'From Outlook')");
    change("INSERT INTO PROJECTS VALUES ('P2', 'Garden')");
  }
};

const std::string take = onAll("1", "UPDATE");

std::string counted(int created, int updated) {
  return "says: Tasks created: " + std::to_string(created) + ". Tasks in Tarnel updated: " + std::to_string(updated) +
         ".\n";
}

TEST_F(ImportStories, pickDecidesWhereANewTaskLands) {
  struct Pick {
    const char* caption;
    const char* outlookProject;
    const char* expected;  // project, key, whether current
  };
  const Pick picks[] = {{"", "P1", "From Outlook|P1|True\n"},
                        {"Tarnel", "P1", "From Outlook|P1|False\n"},
                        {"Tasks with Appointments", "P1", "From Outlook|P1|False\n"},
                        {"Recommended Tasks", "P1", "From Outlook|P1|False\n"},
                        {"From Outlook", "P1", "From Outlook|P1|False\n"},
                        {"Garden", "P1", "Garden|P2|False\n"},
                        {"Garden", "", "Garden|P2|False\n"},
                        {"", "", "||True\n"},
                        {"Tarnel", "", "||False\n"}};
  for (const Pick& pick : picks) {
    set("OutlookProject", pick.outlookProject);
    const std::string subject = "Under " + std::string(pick.caption) + " " + pick.outlookProject;
    addItem(subject);
    const std::string choice =
        *pick.caption ? "choose smtSkedPickTasks TASKPICK \"" + std::string(pick.caption) + "\"\n" : "";
    EXPECT_EQ(told(choice + take).substr(0, 23), "says: Tasks created: 1.") << subject;
    EXPECT_EQ(rows("SELECT tskProject, tskProjectKey, tskCurrent FROM TASKS WHERE tskDesc = '" + subject + "'"),
              pick.expected)
        << subject;
    run("mailbox delete " + entryOf(subject));
  }
}

TEST_F(ImportStories, newTaskTakesTheFieldsAndIsLinkedOnBothSides) {
  addItem("Order cards", {},
          "DESCRIPTION:Ask twice\r\nPRIORITY:1\r\nSTATUS:IN-PROCESS\r\nDUE;VALUE=DATE:20261201\r\n"
          "X-TARNEL-TOTAL-WORK:120\r\nX-TARNEL-ACTUAL-WORK:15\r\n");
  EXPECT_EQ(told(take), counted(1, 0) + "returned\n");
  EXPECT_EQ(rows("SELECT tskDesc, tskNotes, tskHasNotes, tskStatus, tskImp, tskTimeNeeded, tskTimeSpent FROM TASKS"),
            "Order cards|Ask twice|True|1|4|120|15\n");
  EXPECT_EQ(rows("SELECT tskDeadline FROM TASKS WHERE tskDeadline = #12/01/2026#"),
            rows("SELECT tskDeadline FROM TASKS"));
  // Points of a very high importance and a long time, and of a difficulty that the new row has not got yet.
  EXPECT_EQ(rows("SELECT tskPossPoints FROM TASKS"), "72\n");
  const std::string key = items()[0]["userProperties"]["BrackwellTarnelGUID"];
  EXPECT_EQ(rows("SELECT tskGUIDID, tskOutEntityID FROM TASKS"), key + "|" + key + "\n");
}

TEST_F(ImportStories, secondRunUpdatesAndAddsTheNotesOnceMore) {
  addItem("Grows & waits", {}, "DESCRIPTION:x\r\nX-TARNEL-STATUS:WAITING\r\n");
  EXPECT_EQ(told(take + take), counted(1, 0) + counted(0, 1) + "returned\n");
  EXPECT_EQ(rows("SELECT tskDesc, tskNotes, tskTimeNeeded FROM TASKS"), "Grows & waits|xx|10\n");
}

TEST_F(ImportStories, taskOutsideThePickOrGoneIsPassedOver) {
  addTask("A", "Stays", {{"tskCurrent", "0"}, {"tskOutEntityID", "'A'"}});
  addItem("Renamed", "A");
  addItem("Orphan", "GONE");
  EXPECT_EQ(told(take), counted(0, 0) + "returned\n");
  EXPECT_EQ(rows("SELECT tskDesc FROM TASKS"), "Stays\n");
  EXPECT_EQ(told(pickAll + take), counted(0, 1) + "returned\n");
  EXPECT_EQ(rows("SELECT tskDesc FROM TASKS"), "Renamed\n");
}

TEST_F(ImportStories, itemGoneInTheMiddleStopsTheRunAndKeepsWhatWasDone) {
  for (const char* subject : {"First", "Second", "Third"}) addItem(subject);
  OpenWizard wizard(run.shellCommand(drivingArguments));
  wizard("click smtTaskActions(1) ALL");
  const std::string entry = entryOf("Second");
  for (int i = 0; i < 2; ++i) run("mailbox delete " + entry);
  EXPECT_EQ(told(wizard("click smtTaskActions(1) UPDATE")).find("reports: MakeUpdateOutlookTasksInTarnel"), 0U);
  EXPECT_EQ(rows("SELECT tskDesc FROM TASKS"), "First\n");
  EXPECT_EQ(told(pickAll + take), counted(1, 1) + "returned\n");
}

}  // namespace
}  // namespace tarnel::test
