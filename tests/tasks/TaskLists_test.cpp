#include "TaskLists.h"

#include <gtest/gtest.h>

#include "CStringBag.h"
#include "TaskDatabase.h"
#include "TaskPicker.h"
#include "TestPlatform.h"

namespace tarnel::test {
namespace {

struct TaskListsTest : testing::Test {
  TaskListsTest() {
    platform_.use(database_.provider);
    session().theszConnect = database_.connect();
    session().theImportanceNames = {"None", "Low", "Normal", "High", "Urgent"};
    session().theDifficultyNames = {"Trivial", "Easy", "Fair", "Hard", "Grim"};
    session().theDateFormats[dateFormat::hoursInDay] = "24";
    session().theDateFormats[dateFormat::dayStart] = "480";
    session().theDateFormats[dateFormat::dayEnd] = "1020";
    session().theProjectKeys = {"P1", "o'brien"};
    session().theProjectNames = {"Garden", "O'Brien"};
    form_.formLoading = true;
    setupSkedPickTasksList(lists_.smtSkedPickTasks);
    setupSkedPickTasksSort(lists_.smtSkedPickTasks);
    putPickerOnStart(lists_.smtSkedPickTasks);
    form_.formLoading = false;
    addTask("T1", "Cut & dry && done", 10, "P1");
    addTask("T2", "Ask around", 30, "o'brien");
    addTask("T3", "Zip it", 20, "P1");
  }

  void addTask(const std::string& key, const std::string& text, int points, const std::string& project) {
    database_.run(
        "INSERT INTO TASKS (tskGUIDID, tskDesc, tskPossPoints, tskProject, tskProjectKey, tskTimeNeeded) "
        "VALUES ('" +
        key + "', '" + text + "', " + std::to_string(points) + ", 'Any', '" +
        (project == "o'brien" ? "o''brien" : project) + "', 60)");
  }

  void choose(const char* item, const std::string& key) {
    SmartItem& dropDown = lists_.smtSkedPickTasks.Items().Item(item);
    lists_.smtSkedPickTasks.choose(dropDown, dropDown.SubItems().Item(key));
  }

  std::string keys() const {
    std::string text;
    for (const SmartItem& row : lists_.tarnelList.Items()) text += row.Key() + " ";
    return text;
  }

  TaskDatabase database_;
  TestPlatform platform_;
  FormState form_;
  TaskLists lists_{form_};
};

TEST_F(TaskListsTest, aRowCarriesCaptionPictureToolTipAndTag) {
  database_.run(
      "UPDATE TASKS SET tskTimeScheduled = 90, tskTimeSpent = 5, tskOUTEntityID = 'T1' WHERE tskGUIDID = 'T1'");
  database_.run("UPDATE TASKS SET tskOUTEntityID = '' WHERE tskGUIDID = 'T3'");
  ASSERT_TRUE(lists_.refillTarnelList());
  EXPECT_EQ(keys(), "T2 T3 T1 ");
  const SmartItem& row = lists_.tarnelList.Items().Item("T1");
  EXPECT_EQ(row.Caption() + "|" + row.Picture() + "|" + row.ToolTipText(),
            "Cut && dry &&&& done|OUTLOOK|Scheduled: 1:30  Time Needed: 1:00");
  EXPECT_EQ(row.BackColor(), 0xCCFFFF);
  EXPECT_EQ(row.Tag(),
            "IMP=0\tDIFF=0\tNEEDS=-30\tPROJECT=Any\tPROJECTKEY=P1\tTIMENEEDED=60\tTIMESPENT=5\tTIMESCHEDULED=90\t"
            "POINTS=10\tSTATUSTAG=Poss. Points: 10, Project: Any,  Importance: None,  Difficulty: Trivial,  Time "
            "Needed: 0:30\tOUTLOOKID=T1\t");
  EXPECT_EQ(lists_.tarnelList.Items().Item("T2").Picture(), "NONE");
  EXPECT_EQ(lists_.tarnelList.Items().Item("T3").Picture(), "OUTLOOK") << "an empty link mark is a mark";
  EXPECT_TRUE(lists_.theTaskRows->atEOF());
  EXPECT_EQ(platform_.desktop.mousePointer(), MousePointer::standard);
}

TEST_F(TaskListsTest, theFillStopsAtTheFirstTimeThatCannotBeTold) {
  session().theDateFormats[dateFormat::hoursInDay] = "many";
  EXPECT_FALSE(lists_.refillTarnelList());
  EXPECT_EQ(lists_.tarnelList.Items().Count(), 0U);
  EXPECT_LE(platform_.errorReport.reports.size(), 3U);  // one for each time of the first row
  EXPECT_EQ(platform_.desktop.mousePointer(), MousePointer::standard);
}

TEST_F(TaskListsTest, thePickerChoosesTasksAndOrder) {
  choose("TASKPICK", "P1");
  EXPECT_EQ(keys(), "T3 T1 ");
  EXPECT_EQ(lists_.theTaskPickName, "Garden");
  EXPECT_EQ(lists_.theTaskPickKey, "P1");
  choose("TASKPICK", "o'brien");
  EXPECT_EQ(keys(), "T2 ");
  choose("TASKPICK", "T01");
  choose("SORTPICK", "D32");
  EXPECT_EQ(keys(), "T3 T1 T2 ");
  EXPECT_TRUE(platform_.errorReport.reports.empty());
}

TEST_F(TaskListsTest, completedTasksAreSwitchedWithoutChangingTheOrder) {
  database_.run("UPDATE TASKS SET tskStatus = 0 WHERE tskGUIDID = 'T3'");
  choose("SORTPICK", "D02");
  EXPECT_EQ(keys(), "T2 T1 ");
  choose("SORTPICK", "D37");
  EXPECT_EQ(keys(), "T2 T1 T3 ");
  SmartItem& sort = lists_.smtSkedPickTasks.Items().Item("SORTPICK");
  EXPECT_EQ(sort.Tag(), "D02");
  EXPECT_EQ(sort.Value(), Variant("Task Description A to Z"));
  EXPECT_TRUE(sort.SubItems().Item("D37").Checked());
  choose("SORTPICK", "D37");
  EXPECT_EQ(keys(), "T2 T1 ");
  EXPECT_FALSE(lists_.theShowCompleted);
}

}  // namespace
}  // namespace tarnel::test
