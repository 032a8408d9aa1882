#include "OutlookTasksProject.h"

#include <gtest/gtest.h>

#include "DemoScript.h"
#include "SqliteProvider.h"
#include "TaskDatabaseScript.h"
#include "TempFolder.h"
#include "createDatabase.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

using Code = TarnelUtilities::Code;

class OutlookProjects : public testing::Test {
 protected:
  OutlookProjects() {
    int keys = 0;
    const auto newKey = [&keys] { return "K" + std::to_string(++keys); };
    sqlite::createDatabase(folder / "t.db", host::taskDatabaseScript() +
                                                host::demoScript(host::demoContents(Date::of(2026, 11, 19), newKey)));
    session().theszConnect = "Data Source=" + (folder / "t.db").string() + ";";
  }
  ~OutlookProjects() override { session() = {}; }
  std::shared_ptr<ado::Session> open() { return provider.open(session().theszConnect); }
  std::string text(const std::string& select) {
    std::string result;
    for (const ado::Row& row : open()->query(select).rows) result += toText(row) + ";";
    return result;
  }
  static std::string toText(const ado::Row& row) {
    const auto* number = row[0].get<std::int32_t>();
    return number ? std::to_string(*number) : *row[0].get<std::string>();
  }
  std::string setting() { return text("SELECT SetSettingValue FROM Settings WHERE SetSettingName='OutlookProject'"); }

  test::TempFolder folder;
  sqlite::SqliteProvider provider;
  int made = 0;
  OutlookTasksProject utilities{provider, [this] { return "NEW" + std::to_string(++made); }};
};

TEST_F(OutlookProjects, projectIsMadeOnceAndAgainWhenItsRowHasGone) {
  utilities.run(Code::makeOutlookProject, "", "");
  utilities.run(Code::makeOutlookProject, "", "");
  EXPECT_EQ(setting(), "NEW1;");
  EXPECT_EQ(text("SELECT prjGUIDID FROM PROJECTS WHERE prjProject='Outlook Tasks'"), "NEW1;");
  open()->execute("DELETE FROM PROJECTS WHERE prjGUIDID='NEW1'");
  open()->execute("DELETE FROM Settings WHERE SetSettingName='OutlookProject'");
  utilities.run(Code::makeOutlookProject, "", "");
  EXPECT_EQ(setting(), "NEW2;");
}

TEST_F(OutlookProjects, tasksGoToTheHeirWhenItEnds) {
  utilities.run(Code::endOutlookProject, "K1", "House & Garden");
  EXPECT_EQ(text("SELECT COUNT(*) FROM PROJECTS"), "3;") << "there was none to end";
  utilities.run(Code::makeOutlookProject, "", "");
  open()->execute("UPDATE TASKS SET tskProjectKey='NEW1' WHERE tskGUIDID='K4'");
  utilities.run(Code::endOutlookProject, "new1", "itself");
  EXPECT_EQ(setting(), "NEW1;");
  utilities.run(Code::endOutlookProject, "K2", "Bob's launch");
  EXPECT_EQ(text("SELECT tskProject FROM TASKS WHERE tskGUIDID='K4' AND tskProjectKey='K2'"), "Bob's launch;");
  EXPECT_EQ(text("SELECT COUNT(*) FROM PROJECTS"), "3;");
  EXPECT_EQ(setting(), ";");
}

}  // namespace
}  // namespace tarnel
