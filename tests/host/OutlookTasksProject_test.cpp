#include "OutlookTasksProject.h"

#include <gtest/gtest.h>

#include "DemoScript.h"
#include "SqliteProvider.h"
#include "TaskDatabaseScript.h"
#include "TempFolder.h"
#include "createDatabase.h"

namespace tarnel::host {
namespace {

using Code = TarnelUtilities::Code;

class OutlookProjects : public testing::Test {
 protected:
  OutlookProjects() {
    int keys = 0;
    const auto newKey = [&keys] { return "K" + std::to_string(++keys); };
    sqlite::createDatabase(folder / "t.db",
                           taskDatabaseScript() + demoScript(demoContents(Date::of(2026, 11, 19), newKey)));
  }
  std::string text(const std::string& select) {
    std::string result;
    for (const ado::Row& row : provider.open(connection)->query(select).rows) result += toText(row) + ";";
    return result;
  }
  static std::string toText(const ado::Row& row) {
    const auto* number = row[0].get<std::int32_t>();
    return number ? std::to_string(*number) : *row[0].get<std::string>();
  }
  std::string setting() { return text("SELECT SetSettingValue FROM Settings WHERE SetSettingName='OutlookProject'"); }

  test::TempFolder folder;
  sqlite::SqliteProvider provider;
  std::string connection = "Data Source=" + (folder / "t.db").string() + ";";
  int made = 0;
  OutlookTasksProject utilities{provider, connection, [this] { return "NEW" + std::to_string(++made); }};
};

TEST_F(OutlookProjects, projectIsMadeOnceAndAgainWhenItsRowHasGone) {
  utilities.run(Code::makeOutlookProject, "", "");
  utilities.run(Code::makeOutlookProject, "", "");
  EXPECT_EQ(setting(), "NEW1;");
  EXPECT_EQ(text("SELECT prjGUIDID FROM PROJECTS WHERE prjProject='Outlook Tasks'"), "NEW1;");
  provider.open(connection)->execute("DELETE FROM PROJECTS WHERE prjGUIDID='NEW1'");
  provider.open(connection)->execute("DELETE FROM Settings WHERE SetSettingName='OutlookProject'");
  utilities.run(Code::makeOutlookProject, "", "");
  EXPECT_EQ(setting(), "NEW2;");
}

TEST_F(OutlookProjects, tasksGoToTheHeirWhenItEnds) {
  utilities.run(Code::endOutlookProject, "K1", "House & Garden");
  EXPECT_EQ(text("SELECT COUNT(*) FROM PROJECTS"), "3;") << "there was none to end";
  utilities.run(Code::makeOutlookProject, "", "");
  provider.open(connection)->execute("UPDATE TASKS SET tskProjectKey='NEW1' WHERE tskGUIDID='K4'");
  utilities.run(Code::endOutlookProject, "new1", "itself");
  EXPECT_EQ(setting(), "NEW1;");
  utilities.run(Code::endOutlookProject, "K2", "Bob's launch");
  EXPECT_EQ(text("SELECT tskProject FROM TASKS WHERE tskGUIDID='K4' AND tskProjectKey='K2'"), "Bob's launch;");
  EXPECT_EQ(text("SELECT COUNT(*) FROM PROJECTS"), "3;");
  EXPECT_EQ(setting(), ";");
}

}  // namespace
}  // namespace tarnel::host
