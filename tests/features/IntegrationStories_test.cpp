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

TEST_F(IntegrationStories, tasksTurnedOnAreImportedAndTurnedOffMoveToTheHeir) {
  change("UPDATE PROJECTS SET prjProject = 'Bob''s tasks'");
  change("DELETE FROM Settings WHERE SetSettingName = 'OutlookProject'");
  addTask("A", "Current one");
  addItem("From outside");
  addItem("Linked", "GONE");
  addTask("L", "Ours", {{"tskCurrent", "0"}, {"tskOutEntityID", "'L'"}});
  addItem("Theirs", "L");
  for (int i = 0; i < 2; ++i) {  // the second time the project is there
    inForce(0);
    told(update(3));
    EXPECT_EQ(imported(), "From outside|Outlook Tasks\n");
    EXPECT_EQ(items().size(), 4U) << "the Current list went the other way";
    EXPECT_EQ(rows("SELECT tskDesc FROM TASKS WHERE tskGUIDID = 'L'"), "Ours\n") << "only new tasks come in";
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

TEST_F(IntegrationStories, failedTransitionIsReportedAndSavesNothing) {
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

TEST_F(IntegrationStories, modeFourCopiesAtTheChangeAndAtEachLaterStart) {
  const auto addAppt = [this](const std::string& key, const std::string& day) {
    change("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taTaskDesc, taStartTime, taEndTime) VALUES ('" + key +
           "', 'A', 'Appt " + key + "', '" + day + " 00:00:00', '" + day + " 01:00:00')");
  };
  inForce(2);
  set("OutlookProject", "P1");
  set("OutApptSetting", "2");
  addTask("A", "First");
  addTask("X", "Not current", {{"tskCurrent", "0"}});
  addAppt("P", "2020-01-05");
  addAppt("F", "2090-01-05");
  EXPECT_EQ(mailbox(), "");
  const std::string atTheChange = told("tab 2\n" + click("TASK4") + click("APPT4") + "click smtActions UPDATE\n");
  EXPECT_NE(atTheChange.find("says: Outlook Tasks created: 1."), std::string::npos) << atTheChange;
  const std::string copied = "Tasks|First|0|A\nCalendar|Appt F|null|F\n";
  EXPECT_EQ(mailbox(), copied);
  addTask("B", "Second");
  addAppt("G", "2090-01-06");
  for (int start = 0; start < 2; ++start) {
    EXPECT_EQ(told(""), "returned\n") << "a start that was not asked to copy tells no counts";
    EXPECT_EQ(mailbox(), copied + "Tasks|Second|0|B\nCalendar|Appt G|null|G\n");
  }
  addItem("Done there", "C", "STATUS:COMPLETED\r\n");
  addTask("C", "Done there", {{"tskOUTEntityID", "'C'"}});
  inForce(2);
  addTask("D", "Third");
  told("");
  EXPECT_EQ(items().size(), 5U) << "another mode copies nothing";
  inForce(3);
  told("");
  EXPECT_EQ(mailbox(), copied + "Tasks|Second|0|B\nCalendar|Appt G|null|G\nTasks|Done there|2|C\nTasks|Third|0|D\n");
  change("UPDATE TASKAPPTS SET taTaskDesc = Null WHERE taGUIDID = 'G'");
  EXPECT_EQ(told("tab 2\n"), "reports: DisplayTaskAppts 94\nfailed\n") << "nobody is kept out of the wizard";
  change("DELETE FROM TASKAPPTS");
  for (const json& item : items()) run("mailbox delete " + std::string(item["entryId"]));
  for (const json& item : items()) run("mailbox delete " + std::string(item["entryId"]));
  EXPECT_EQ(told(""), "returned\n") << "links can't be looked up in an empty folder";
}

TEST_F(IntegrationStories, aProfileIsKeptInTheOneRowThatIsForIt) {
  run("profile add Work work.mailbox");
  const std::string choose = "tab 2\nchoose smtSettings PRO1 Work\nclick smtActions UPDATE\n";
  const std::string kept =
      "SELECT SetSettingName, SetSettingValue FROM Settings WHERE SetSettingSection = 'OutlookProfileString' ORDER BY "
      "1";
  change("DELETE FROM Settings WHERE SetSettingSection = 'OutlookProfileString'");
  told(update(1));
  EXPECT_EQ(rows(kept), "") << "none was chosen";
  EXPECT_EQ(told(choose).find("says: "), std::string::npos);
  EXPECT_EQ(rows(kept), "OutlookProfile|Work\n");
  change("UPDATE Settings SET SetSettingValue = 'Mine' WHERE SetSettingName = 'OutlookProfile'");
  change(
      "INSERT INTO Settings (SetUser, SetSettingSection, SetSettingName, SetSettingValue) VALUES ('1', "
      "'OutlookProfileString', 'Second', 'Yours')");
  EXPECT_NE(told(choose).find("says: The profile can't be kept: the settings hold 2 rows"), std::string::npos);
  EXPECT_EQ(rows(kept), "OutlookProfile|Mine\nSecond|Yours\n");
}

}  // namespace
}  // namespace tarnel::test
