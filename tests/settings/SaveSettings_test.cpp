#include "StoredSettings.h"

#include <gtest/gtest.h>

#include "Failure.h"
#include "TaskDatabase.h"
#include "TestPlatform.h"

namespace tarnel::test {
namespace {

// A task database as the host makes it, with nothing in it but the default settings.
struct SaveSettingsTest : testing::Test {
  SaveSettingsTest() {
    platform_.use(database_.provider);
    session().theszConnect = database_.connect();
    session().OutTaskSetting = 3;
    session().OutApptSetting = 1;
    state_.meSizes = {10, 20, 8000.5F, 6000, 0.25F, 0.75F};
  }
  void addLayoutRows(int count) {
    for (int i = 0; i < count; ++i)
      database_.run("INSERT INTO Settings VALUES ('1', 'OutWizard', 'n', 'old', '', " + std::to_string(i) + ", '')");
  }
  // The values of a section in their order, a line each.
  std::string section(const std::string& name) {
    return database_.describe("SELECT SetSettingValue FROM Settings WHERE SetSettingSection='" + name +
                              "' ORDER BY setSettingDisplayOrd");
  }

  TaskDatabase database_;
  TestPlatform platform_;
  FormState state_;
};

TEST_F(SaveSettingsTest, missingRowsAreNotMadeAndDoubledOnesAllTakeTheMode) {
  addLayoutRows(2);
  database_.run("DELETE FROM Settings WHERE SetSettingName='OutApptSetting'");
  database_.run("INSERT INTO Settings VALUES ('1', 'OutLookIntegration', 'OutTaskSetting', '0', '', 9, '')");
  EXPECT_TRUE(SaveSettings(state_));
  EXPECT_EQ(section("OutWizard"), "10\n20\n");
  EXPECT_EQ(section("OutLookIntegration"), "\n3\n3\n");
}

TEST_F(SaveSettingsTest, aSeventhLayoutRowKeepsEverythingFromBeingWritten) {
  addLayoutRows(7);
  EXPECT_FALSE(SaveSettings(state_));
  ASSERT_EQ(platform_.errorReport.reports.size(), 1U);
  EXPECT_EQ(platform_.errorReport.reports[0].number, failure::subscript);
  EXPECT_EQ(section("OutWizard"), "old\nold\nold\nold\nold\nold\nold\n");
  EXPECT_EQ(section("OutLookIntegration"), "\n2\n2\n");
}

TEST_F(SaveSettingsTest, otherUsersRowsStayAsTheyAre) {
  database_.run("UPDATE Settings SET SetUser='2' WHERE SetSettingName='OutTaskSetting'");
  EXPECT_TRUE(SaveSettings(state_));
  EXPECT_EQ(section("OutLookIntegration"), "\n2\n1\n");
}

}  // namespace
}  // namespace tarnel::test
