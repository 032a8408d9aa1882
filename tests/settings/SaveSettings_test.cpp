#include "SaveSettings.h"

#include <gtest/gtest.h>

#include "SettingsDatabase.h"

namespace tarnel {
namespace {

class SaveSettingsTest : public ::testing::Test {
 protected:
  SaveSettingsTest() {
    state_.meSizes = {10, 20, 8000.5F, 6000, 0.25F, 0.75F};
    session().OutTaskSetting = 3;
    session().OutApptSetting = 1;
  }
  void addLayoutRows(int count) {
    for (int i = 0; i < count; ++i)
      database_.run("INSERT INTO Settings VALUES ('1', 'OutWizard', 'n', 'old', '', " + std::to_string(i) + ", '')");
  }
  const std::vector<FailureReport>& reports() const { return database_.platform.errorReport.reports; }

  test::SettingsDatabase database_;
  FormState state_;
};

TEST_F(SaveSettingsTest, layoutGoesByOrderAndModesByName) {
  addLayoutRows(6);
  EXPECT_TRUE(SaveSettings(state_));
  EXPECT_EQ(database_.section("OutWizard"), "10 20 8000.5 6000 0.25 0.75 ");
  EXPECT_EQ(database_.section("OutLookIntegration"), " 3 1 ");
}

TEST_F(SaveSettingsTest, missingRowsAreNotMadeAndDoubledOnesAllTakeTheMode) {
  addLayoutRows(2);
  database_.run("DELETE FROM Settings WHERE SetSettingName='OutApptSetting'");
  database_.run("INSERT INTO Settings VALUES ('1', 'OutLookIntegration', 'OutTaskSetting', '0', '', 9, '')");
  EXPECT_TRUE(SaveSettings(state_));
  EXPECT_EQ(database_.section("OutWizard"), "10 20 ");
  EXPECT_EQ(database_.section("OutLookIntegration"), " 3 3 ");
}

TEST_F(SaveSettingsTest, aSeventhLayoutRowKeepsEverythingFromBeingWritten) {
  addLayoutRows(7);
  EXPECT_FALSE(SaveSettings(state_));
  ASSERT_EQ(reports().size(), 1U);
  EXPECT_EQ(reports()[0].number, failure::subscript);
  EXPECT_EQ(database_.section("OutWizard"), "old old old old old old old ");
  EXPECT_EQ(database_.section("OutLookIntegration"), " 2 2 ");
}

TEST_F(SaveSettingsTest, otherUsersRowsStayAsTheyAre) {
  database_.run("UPDATE Settings SET SetUser='2' WHERE SetSettingName='OutTaskSetting'");
  EXPECT_TRUE(SaveSettings(state_));
  EXPECT_EQ(database_.section("OutLookIntegration"), " 2 1 ");
}

TEST_F(SaveSettingsTest, aDatabaseThatCantBeWrittenIsTold) {
  // A superuser may write where permissions forbid it, so a trigger does.
  test::SettingsDatabase locked(
      "CREATE TRIGGER locked BEFORE UPDATE ON Settings BEGIN SELECT RAISE(ABORT, 'locked'); END;");
  session().OutTaskSetting = 3;
  EXPECT_FALSE(SaveSettings(state_));
  ASSERT_EQ(locked.platform.errorReport.reports.size(), 1U);
  EXPECT_EQ(locked.platform.errorReport.reports[0].procedure, "SaveSettings");
  EXPECT_EQ(locked.section("OutLookIntegration"), " 2 2 ");
}

}  // namespace
}  // namespace tarnel
