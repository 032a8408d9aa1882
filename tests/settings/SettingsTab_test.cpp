#include "IntegrationModes.h"
#include "SettingsTabTest.h"

namespace tarnel::test {
namespace {

TEST_F(SettingsTabTest, showsTheModesInForceWithTheirNotesAndStaysUnlocked) {
  for (std::int32_t mode = 0; mode < 4; ++mode) {
    const auto slot = static_cast<std::size_t>(mode);
    inForce(mode, 3 - mode);
    EXPECT_EQ(checkedMode(taskModes, tab_.smtSettings.Items()), mode);
    EXPECT_EQ(checkedMode(apptModes, tab_.smtSettings.Items()), 3 - mode);
    EXPECT_EQ(note("TASKNOTE"), taskModes[slot].note);
    EXPECT_EQ(note("APPTNOTE"), apptModes[3 - slot].note);
  }
  EXPECT_EQ(happened(), "");
}

TEST_F(SettingsTabTest, aModeOutsideTheFourLeavesTheItemsAlone) {
  inForce(2, 1);
  inForce(4, -1);
  EXPECT_TRUE(tab_.getUpdatedSettings());
  EXPECT_EQ(tab_.newTaskSetting, 2);
  EXPECT_EQ(tab_.newApptSetting, 1);
}

TEST_F(SettingsTabTest, aClickedModeIsReadOffShownInItsOwnNoteAndLocks) {
  inForce(2, 2);
  tab_.SetupForProfiles();
  happened();
  click("APPT4");
  EXPECT_EQ(happened(), "lock ");
  click("TASK2");
  tab_.getUpdatedSettings();
  EXPECT_EQ(tab_.newTaskSetting, 1);
  EXPECT_EQ(tab_.newApptSetting, 3);
  EXPECT_EQ(note("TASKNOTE"), taskModes[1].note);
  EXPECT_EQ(note("APPTNOTE"), apptModes[3].note);
  EXPECT_EQ(session().OutTaskSetting, 2);  // in force until "UPDATE"
}

TEST_F(SettingsTabTest, whoLeavesAnIntegrationIsAskedWhichOtherProjectTakesItsTasks) {
  const auto question = [this] {
    std::string text;
    if (!has("OUT2PROJECT")) return std::string("none");
    EXPECT_EQ(item("OUT2PROJECT").Type(), item("PRO1").Type()) << "a drop-down";
    for (const SmartItem& entry : item("OUT2PROJECT").SubItems()) text += entry.Key() + "=" + entry.Caption() + " ";
    return text;
  };
  inForce(0);
  click("TASK3");
  click("TASK1");
  EXPECT_EQ(question(), "none") << "no integration is in force";
  inForce(1);
  click("TASK1");
  click("TASK1");  // a second click makes no second list
  EXPECT_EQ(question(), "KEY-A=Attic KEY-Z=Zoo ");
  EXPECT_EQ(item("OUT2PROJECT").Value(), Variant("Attic"));
  EXPECT_EQ(item("OUT2PROJECT").Index() + 1, tab_.smtSettings.Items().Count());
  click("APPT1");
  EXPECT_TRUE(has("OUT2PROJECT"));
  click("TASK3");
  EXPECT_EQ(question(), "none");

  inForce(3);
  session().theProjectKeys.clear();
  session().theProjectNames.clear();
  click("TASK1");
  EXPECT_EQ(question(), "") << "there is no project to offer";
  tab_.setTheSettings();
  EXPECT_EQ(question(), "none");
  EXPECT_TRUE(item("TASK4").Checked());
  EXPECT_TRUE(reports().empty());
}

TEST_F(SettingsTabTest, nobodyIsAskedWhereTheItemWasCheckedByNoClick) {
  inForce(3);
  item("TASK1").setChecked(true);
  tab_.FromToOutTasks();
  EXPECT_EQ(happened(), "currentOff ");
  EXPECT_EQ(session().OutTaskSetting, 0);
  inForce(1);
  item("TASK1").setChecked(true);
  EXPECT_THROW(tab_.FromToOutTasks(), Failure);
  EXPECT_EQ(happened(), "");
  EXPECT_EQ(platform_.utilities.runs, 0) << "no project ends";
}

TEST_F(SettingsTabTest, theAppointmentsModeChangesWhateverItWas) {
  inForce(0, 2);
  click("APPT2");
  happened();
  EXPECT_TRUE(tab_.FromToOutAppts());
  EXPECT_EQ(session().OutApptSetting, 1);
  EXPECT_TRUE(tab_.FromToOutAppts());
  EXPECT_EQ(happened(), "prefs prefs ");
}

}  // namespace
}  // namespace tarnel::test
