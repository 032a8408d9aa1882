#include "TaskLists.h"

#include <gtest/gtest.h>

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
  }

  SmartItem& dropDown(const char* item) { return lists_.smtSkedPickTasks.Items().Item(item); }
  void choose(const char* item, const std::string& key) {
    lists_.smtSkedPickTasks.choose(dropDown(item), dropDown(item).SubItems().Item(key));
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
  database_.addTask("T1", "Cut & dry && done",
                    {{"tskPossPoints", "10"},
                     {"tskImp", "3"},
                     {"tskDifficulty", "1"},
                     {"tskTimeNeeded", "60"},
                     {"tskTimeSpent", "5"},
                     {"tskTimeScheduled", "90"},
                     {"tskProject", "'Any'"},
                     {"tskProjectKey", "'P1'"},
                     {"tskOUTEntityID", "'T1'"}});
  database_.addTask("T2", "No mark", {{"tskPossPoints", "30"}});
  database_.addTask("T3", "Empty mark", {{"tskPossPoints", "20"}, {"tskOUTEntityID", "''"}, {"tskImp", "4"}});
  lists_.tarnelList.Items().Add(0, "OLD", "Of the last fill", SmartItemType::checkRow);
  ASSERT_TRUE(lists_.refillTarnelList());
  EXPECT_EQ(keys(), "T2 T3 T1 ");
  const SmartItem& row = lists_.tarnelList.Items().Item("T1");
  EXPECT_EQ(row.Caption() + "|" + row.Picture() + "|" + row.ToolTipText(),
            "Cut && dry &&&& done|OUTLOOK|Scheduled: 1:30  Time Needed: 1:00");
  EXPECT_EQ(row.BackColor(), 0xCCFFFF);
  EXPECT_EQ(row.Tag(),
            "IMP=3\tDIFF=1\tNEEDS=-30\tPROJECT=Any\tPROJECTKEY=P1\tTIMENEEDED=60\tTIMESPENT=5\tTIMESCHEDULED=90\t"
            "POINTS=10\tSTATUSTAG=Poss. Points: 10, Project: Any,  Importance: High,  Difficulty: Easy,  Time "
            "Needed: 0:30\tOUTLOOKID=T1\t");
  EXPECT_EQ(lists_.tarnelList.Items().Item("T2").Picture(), "NONE");
  EXPECT_EQ(lists_.tarnelList.Items().Item("T3").Picture(), "OUTLOOK") << "an empty link mark is a mark";
  EXPECT_NE(lists_.tarnelList.Items().Item("T3").Tag().find("Importance: Urgent"), std::string::npos);
  EXPECT_TRUE(lists_.theTaskRows->atEOF());
  EXPECT_EQ(platform_.desktop.progressSteps, (std::vector<std::pair<int, int>>{{1, 3}, {2, 3}, {3, 3}}));
  EXPECT_EQ(platform_.desktop.pointers, (std::vector{MousePointer::hourglass, MousePointer::standard}));
}

TEST_F(TaskListsTest, theFillStopsAtTheFirstTimeThatCannotBeTold) {
  database_.addTask("T1", "Takes an hour", {{"tskTimeNeeded", "60"}});
  session().theDateFormats[dateFormat::hoursInDay] = "many";
  EXPECT_FALSE(lists_.refillTarnelList());
  EXPECT_EQ(lists_.tarnelList.Items().Count(), 0U);
  EXPECT_LE(platform_.errorReport.reports.size(), 3U);  // one for each time of the row
  EXPECT_EQ(platform_.desktop.mousePointer(), MousePointer::standard);
}

TEST_F(TaskListsTest, everyOrderSortsAsItSays) {
  const auto add = [&](const char* key, const char* desc, int points, const char* deadline, int importance,
                       int difficulty, int needed, int current, int all, int project) {
    database_.addTask(key, desc,
                      {{"tskPossPoints", std::to_string(points)},
                       {"tskDeadline", deadline},
                       {"tskImp", std::to_string(importance)},
                       {"tskDifficulty", std::to_string(difficulty)},
                       {"tskTimeNeeded", std::to_string(needed)},
                       {"tskCustSortCur", std::to_string(current)},
                       {"tskCustSortTarnel", std::to_string(all)},
                       {"tskCustSortProj", std::to_string(project)},
                       {"tskProjectKey", "'P1'"}});
  };
  add("A", "bravo", 10, "'2026-12-03 00:00:00'", 1, 0, 30, 2, 1, 2);
  add("B", "delta", 40, "'2026-12-01 00:00:00'", 3, 4, 40, 1, 2, 3);
  add("C", "Alpha", 20, "Null", 4, 2, 20, 4, 3, 1);
  add("D", "charlie", 30, "'2026-12-02 00:00:00'", 0, 1, 10, 3, 4, 4);
  std::string told;
  for (SmartItem& entry : dropDown("SORTPICK").SubItems()) {
    told += entry.Key() + " " + entry.Caption();
    if (entry.Type() == SmartItemType::dropDownEntry) {
      choose("SORTPICK", entry.Key());
      told += ": " + keys();
    }
    told += "\n";
  }
  EXPECT_EQ(told,
            "D00 Possible Points High to Low: B D C A \nD01 To Do Order First to Last: B A D C \n"
            "D02 Task Description A to Z: C A D B \nD03 Deadline Now to Later: C B D A \nD0A2 Descending Order\n"
            "D10 Possible Points High to Low: B D C A \nD11 To Do Order First to Last: B A D C \n"
            "D12 Task Description A to Z: C A D B \nD13 Importance Low to High: D A B C \n"
            "D14 Difficulty Low to High: A D C B \nD15 Time Needed Low to High: D C A B \n"
            "D16 Deadline Now to Later: C B D A \nD0A3 Ascending Order\n"
            "D30 Possible Points Low to High: A C D B \nD31 To Do Order Last to First: A C D B \n"
            "D32 Task Description Z to A: B D A C \nD33 Importance High to Low: C B A D \n"
            "D34 Difficulty High to Low: B C D A \nD35 Time Needed High to Low: B A C D \n"
            "D36 Deadline Later to Now: A D B C \nD0A4 Include\nD37 Completed Tasks\n")
      << "D31 goes by the points, as it always has";
  for (const char* order : {"D01", "D11"}) {
    choose("SORTPICK", order);
    for (const auto& [pick, own] : {std::pair{"T01", "A B C D "}, {"P1", "C A B D "}, {"T00", "B A D C "}}) {
      choose("TASKPICK", pick);
      EXPECT_EQ(keys(), own) << order << pick;
    }
  }
}

TEST_F(TaskListsTest, everyPickShowsItsTasksWithAndWithoutTheCompleted) {
  const Columns open{{"tskCurrent", "0"}, {"tskImp", "3"}, {"tskTimeNeeded", "181"}};
  const auto add = [&](const char* key, Columns differing) {
    differing.insert(open.begin(), open.end());
    database_.addTask(key, key, differing);
  };
  add("current", {{"tskCurrent", "1"}, {"tskTimeNeeded", "180"}});
  add("done", {{"tskCurrent", "1"}, {"tskStatus", "0"}, {"tskHasSchedule", "1"}, {"tskProjectKey", "'P1'"}});
  add("little", {{"tskImp", "2"}, {"tskProjectKey", "'P1'"}});
  add("recommended", {{"tskProjectKey", "'o''brien'"}});
  add("recommended done", {{"tskStatus", "0"}});
  add("scheduled", {{"tskHasSchedule", "1"}});
  choose("SORTPICK", "D02");
  std::string told;
  for (const char* pick : {"T00", "T01", "T02", "T03", "P1", "o'brien"}) {
    choose("TASKPICK", pick);
    told += lists_.theTaskPickKey + " " + lists_.theTaskPickName + ": " + keys();
    choose("SORTPICK", "D37");
    told += "| " + keys() + "\n";
    choose("SORTPICK", "D37");
  }
  EXPECT_EQ(told,
            "T00 Current Tasks: current | current done \n"
            "T01 Tarnel: current little recommended scheduled | current little recommended scheduled \n"
            "T02 Tasks with Appointments: scheduled | done scheduled \n"
            "T03 Recommended Tasks: recommended | recommended recommended done \n"
            "P1 Garden: little | done little \n"
            "o'brien O'Brien: recommended | recommended \n");
  EXPECT_TRUE(platform_.errorReport.reports.empty());
}

TEST_F(TaskListsTest, completedTasksAreSwitchedWithoutChangingTheOrder) {
  choose("SORTPICK", "D02");
  SmartItem& sort = dropDown("SORTPICK");
  for (const bool shown : {true, false}) {
    choose("SORTPICK", "D37");
    EXPECT_EQ(sort.Tag(), "D02");
    EXPECT_EQ(sort.Value(), Variant("Task Description A to Z"));
    EXPECT_EQ(sort.SubItems().Item("D37").Checked(), shown);
    EXPECT_EQ(lists_.theShowCompleted, shown);
    EXPECT_FALSE(form_.formLoading);
  }
}

}  // namespace
}  // namespace tarnel::test
