#include "ReachableOutlook.h"
#include "SettingsTabTest.h"

namespace tarnel {
namespace {

class TaskTransitionsTest : public SettingsTabTest {
 protected:
  TaskTransitionsTest() { platform_.use(outlook_); }

  // From one mode to another by the user's click; what happened and the mode in force afterwards.
  std::string change(std::int32_t from, std::int32_t to) {
    inForce(from);
    click("TASK" + std::to_string(to + 1));
    happened();
    EXPECT_TRUE(tab_.FromToOutTasks());
    EXPECT_EQ(tab_.newTaskSetting, to);
    return happened() + std::to_string(session().OutTaskSetting);
  }

  test::ReachableOutlook outlook_;
};

constexpr const char* made = "100(Tarnel - Version 1.14,Outlook Tasks) ";
constexpr const char* ended = "200(KEY-A,Attic) ";

TEST_F(TaskTransitionsTest, eachPairOfModesHasItsWorkAndItsEventsInOrder) {
  const std::string none;
  const std::string expected[4][4] = {
      {"0", made + none + "import prefs 1", made + none + "import prefs 2", made + none + "import prefs currentOn 3"},
      {ended + none + "prefs projectEnded 0", "1", "prefs 2", "import prefs 3"},
      {ended + none + "prefs projectEnded 0", "prefs 1", "2", "import prefs 3"},
      {"currentOff " + none + ended + "prefs projectEnded 0", "currentOff 1", "currentOff 2", "3"}};
  for (std::int32_t from = 0; from < 4; ++from)
    for (std::int32_t to = 0; to < 4; ++to) EXPECT_EQ(change(from, to), expected[from][to]) << from << " to " << to;
  EXPECT_TRUE(platform_.desktop.messages.empty());
  EXPECT_FALSE(session().theOutlookApp);  // let go again
  EXPECT_FALSE(session().theOutlookNS);
}

TEST_F(TaskTransitionsTest, aProjectThatCantBeChosenFailsBeforeTheHostHearsOfAnything) {
  session().theOutlookProjectKey = "KEY-A";  // the first one, which the list leaves out and the choice shows
  for (const std::int32_t from : {1, 2, 3}) {
    inForce(from);
    click("TASK1");
    happened();
    EXPECT_THROW(tab_.FromToOutTasks(), Failure);
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(session().OutTaskSetting, from);
  }
}

TEST_F(TaskTransitionsTest, nobodyIsAskedWhereTheItemWasCheckedByNoClick) {
  inForce(3);
  item("TASK1").setChecked(true);
  tab_.FromToOutTasks();
  EXPECT_EQ(happened(), "currentOff ");
  EXPECT_EQ(session().OutTaskSetting, 0);
  inForce(1);
  item("TASK1").setChecked(true);
  EXPECT_THROW(tab_.FromToOutTasks(), Failure);
}

}  // namespace
}  // namespace tarnel
