#include "Story.h"

namespace tarnel::test {
namespace {

// The user changes how the two programs work together; the host acts on what it is told.
struct IntegrationStories : Story {
  static std::string click(const std::string& key) { return "click smtSettings " + key + "\n"; }
  static std::string taskKey(int mode) { return "TASK" + std::to_string(mode + 1); }
  static std::string update(int mode) { return "tab 2\n" + click(taskKey(mode)) + "click smtActions UPDATE\n"; }

  void inForce(int mode) { set("OutTaskSetting", std::to_string(mode)); }
  // What came from Outlook, with the project whose key and name it bears.
  std::string imported() {
    return rows(
        "SELECT tskDesc, prjProject FROM TASKS INNER JOIN PROJECTS ON tskProjectKey = prjGUIDID "
        "WHERE tskProject = prjProject AND tskGUIDID <> 'A'");
  }
  std::string projects() { return rows("SELECT prjProject FROM PROJECTS ORDER BY prjProject"); }
  // The events alone, in their order, without the one that opens each run and the two that end it.
  static std::string events(const std::string& told) {
    std::string text;
    std::istringstream lines(told);
    for (std::string line; std::getline(lines, line);)
      if (line.starts_with("event: ") && line.find("UpdateOutlookSettings") == std::string::npos)
        text += line.substr(7) + " ";
    const std::string end = "OutlookPrefsChanged CloseTheWizard ";
    EXPECT_TRUE(text.ends_with(end)) << told;
    return text.substr(0, text.size() - std::min(text.size(), end.size()));
  }
};

TEST_F(IntegrationStories, eachChangeOfTheTasksModeIsToldStoredAndMakesOrEndsTheProject) {
  const std::string prefs = "OutlookPrefsChanged ";
  const std::string import = "ImportFromOutlook ";
  const std::string off = "TurnOffOutlookCurrentTasks ";
  const std::string killed = "MOPKilled ";
  const std::string expected[4][4] = {
      {"", import + prefs, import + prefs, import + prefs + "TurnOnOutlookCurrentTasks "},
      {prefs + killed, "", prefs, import + prefs},
      {prefs + killed, prefs, "", import + prefs},
      {off + prefs + killed, off, off, ""},
  };
  for (int from = 0; from < 4; ++from) {
    for (int to = 0; to < 4; ++to) {
      inForce(from);
      set("OutlookProject", "P1");  // with nothing in force the key leads nowhere
      change("DELETE FROM PROJECTS WHERE prjProject = 'Outlook Tasks'");
      if (from != 0) change("INSERT INTO PROJECTS VALUES ('P1', 'Outlook Tasks')");
      EXPECT_EQ(events(told(update(to))), expected[from][to]) << from << " to " << to;
      EXPECT_EQ(setting("OutTaskSetting"), std::to_string(to) + "\n") << from << " to " << to;
      EXPECT_EQ(projects(), to == 0 ? "My Tasks\n" : "My Tasks\nOutlook Tasks\n") << from << " to " << to;
    }
  }
}

TEST_F(IntegrationStories, turningTasksOnImportsIntoTheOutlookProjectAndTurningThemOffMovesThem) {
  change("UPDATE PROJECTS SET prjProject = 'Bob''s tasks'");
  change("DELETE FROM Settings WHERE SetSettingName = 'OutlookProject'");
  addTask("A", "Current one");
  addItem("From outside");
  addItem("Linked", "GONE");
  for (int i = 0; i < 2; ++i) {  // the second time the project is there
    inForce(0);
    told(update(3));
    EXPECT_EQ(imported(), "From outside|Outlook Tasks\n");
    EXPECT_EQ(items().size(), 3U) << "the Current list went the other way";
    EXPECT_EQ(projects(), "Bob's tasks\nOutlook Tasks\n");
  }
  told(update(0));
  EXPECT_EQ(imported(), "From outside|Bob's tasks\n");
  EXPECT_EQ(projects(), "Bob's tasks\n");
  EXPECT_EQ(setting("OutlookProject"), "\n");
}

TEST_F(IntegrationStories, withNoOutlookProjectOrItselfForAnHeirNothingMoves) {
  change("UPDATE PROJECTS SET prjGUIDID = 'p1', prjProject = 'Outlook Tasks'");
  addTask("A", "From outside", {{"tskProjectKey", "'p1'"}, {"tskProject", "'Outlook Tasks'"}});
  addTask("B", "Of no project", {{"tskProjectKey", "''"}, {"tskProject", "''"}});
  for (const char* key : {"GONE", "P1"}) {
    inForce(3);
    set("OutlookProject", key);
    EXPECT_NE(told(update(0)).find("MOPKilled"), std::string::npos) << key;
    EXPECT_EQ(rows("SELECT tskGUIDID, tskProjectKey, tskProject FROM TASKS ORDER BY tskGUIDID"),
              "A|p1|Outlook Tasks\nB||\n")
        << key;
    EXPECT_EQ(projects(), "Outlook Tasks\n") << key;
  }
}

TEST_F(IntegrationStories, aFailedConnectionLeavesTheIntegrationOff) {
  inForce(0);
  std::filesystem::remove(run.home / mailboxFile);
  const ProgramResult result = run(drivingArguments + std::string(" --mailbox nowhere"),
                                   "tab 2\n" + click("TASK2") + "click smtActions UPDATE\n");
  EXPECT_NE(told(result).find("Integrate Outlook tasks is off."), std::string::npos);
  EXPECT_EQ(events(told(result)), "OutlookPrefsChanged ");
  EXPECT_EQ(setting("OutTaskSetting"), "0\n");
}

TEST_F(IntegrationStories, aTransitionThatFailsIsReportedBeforeTheHostHearsOfItAndSavesNothing) {
  set("OutlookProject", "P1");
  change("DELETE FROM PROJECTS");
  change("INSERT INTO PROJECTS VALUES ('P1', 'Outlook Tasks')");  // there is no other that its tasks could go to
  const std::string toldHost = "event: UpdateOutlookSettings newAppt=2 newProfile=\"\" newTask=0\n";
  for (const int from : {1, 2, 3}) {
    inForce(from);
    EXPECT_EQ(told("resize 9000 7000\n" + update(0)), toldHost + "reports: smtActions_Click 91\nfailed\n") << from;
    EXPECT_EQ(setting("OutTaskSetting"), std::to_string(from) + "\n");
    EXPECT_EQ(setting("meWidth"), "8400\n");
  }
}

TEST_F(IntegrationStories, cancelPutsTheModeBackAndUnlocksTheTabs) {
  const ProgramResult result =
      drive("tab 2\n" + click("TASK4") + "tab 0\nclick smtActions DONE\nclick smtActions CANCEL\ntab 0\nshow\n");
  EXPECT_EQ(told(result), "error: tab 0\nerror: click smtActions DONE\nreturned\n");
  EXPECT_EQ(result.reply("show")["tab"], 0);
  EXPECT_EQ(setting("OutTaskSetting"), "2\n");
}

TEST_F(IntegrationStories, aChosenProfileIsTheMailboxOfTheNextRun) {
  addItem("In my own mailbox");
  EXPECT_EQ(run("profile add Work work.mailbox").exitCode, 0);
  told("tab 2\nchoose smtSettings PRO1 Work\nclick smtActions UPDATE\n");
  EXPECT_EQ(rows("SELECT SetSettingValue FROM Settings WHERE SetSettingSection = 'OutlookProfileString'"), "Work\n");
  EXPECT_EQ(listed("1"), "");
}

}  // namespace
}  // namespace tarnel::test
