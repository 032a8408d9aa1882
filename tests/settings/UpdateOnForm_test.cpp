#include <gtest/gtest.h>

#include <algorithm>

#include "Form.h"
#include "Profiles.h"
#include "ReachableOutlook.h"
#include "SettingsDatabase.h"
#include "SftTabs.h"
#include "SmartUI.h"
#include "clsTarnelOutWizard.h"

namespace tarnel {
namespace {

template <class Kind>
Kind& find(Form& form, std::string_view name) {
  for (Control* control : form.controls())
    if (control->Name() == name) return dynamic_cast<Kind&>(*control);
  throw std::out_of_range(std::string(name));
}

// The whole wizard on a real database; the test acts while its form stands.
class UpdateOnFormTest : public ::testing::Test {
 protected:
  UpdateOnFormTest() {
    outlook_.outOfReach = true;  // while the form fills its lists
    database_.platform.use(outlook_);
    Profiles(database_.platform.registry).add("Work", "/mail/work.mailbox");
  }

  // Opens the wizard, goes to the settings tab and acts; the host's events in their order, with the tasks mode that
  // the database holds at each.
  std::string run(const std::function<void(Form&)>& act) {
    std::string told;
    clsTarnelOutWizard wizard;
    std::vector<Connection> connections;
    const auto tell = [&](const std::string& text) { told += text + database_.section("OutLookIntegration") + "| "; };
    const auto listen = [&](Signal<>& event, const char* name) {
      connections.push_back(event.connect([tell, name] { tell(name); }));
    };
    listen(wizard.OutlookPrefsChanged, "prefs");
    listen(wizard.ImportFromOutlook, "import");
    listen(wizard.CloseTheWizard, "closed");
    connections.push_back(
        wizard.UpdateOutlookSettings.connect([&](std::int32_t& task, std::int32_t& appt, const std::string& profile) {
          tell("update " + std::to_string(task) + std::to_string(appt) + profile + " ");
        }));
    database_.platform.desktop.onModal = [&](Form& form) {
      outlook_.outOfReach = false;
      find<SftTabs>(form, "tabWiz").setCurrent(2);
      act(form);
    };
    wizard.Setup(false, "ALL", "M60", database_.connection());
    return told;
  }
  static void press(Form& form, const char* control, const char* key) {
    SmartUI& bar = find<SmartUI>(form, control);
    bar.press(bar.Items().Item(key));
  }
  static bool locked(Form& form) {
    const auto shows = [&](const char* key) { return find<SmartUI>(form, "smtActions").Items().Item(key).Visible(); };
    const bool result = !find<SftTabs>(form, "tabWiz").TabEnabled(0);
    EXPECT_EQ(shows("UPDATE"), result);
    EXPECT_EQ(shows("CANCEL"), result);
    EXPECT_EQ(shows("DONE"), !result);
    return result;
  }

  test::SettingsDatabase database_;
  test::ReachableOutlook outlook_;
};

TEST_F(UpdateOnFormTest, tellsTheModesFirstThenTheTransitionThenSavesAndCloses) {
  database_.setValue("OutTaskSetting", "0");
  database_.setValue("OutlookProfile", "Work");
  const std::string told = run([](Form& form) {
    press(form, "smtSettings", "TASK2");
    press(form, "smtSettings", "APPT4");
    press(form, "smtActions", "UPDATE");
  });
  EXPECT_EQ(told, "update 13Work  0 2 | import 0 2 | prefs 0 2 | prefs 0 2 | closed 1 3 | ");
}

TEST_F(UpdateOnFormTest, cancelShowsTheStoredModesAgainAndDoneWritesThem) {
  database_.run("INSERT INTO PROJECTS VALUES ('KEY-A', 'Attic')");
  const std::string told = run([](Form& form) {
    EXPECT_TRUE(find<SmartUI>(form, "smtSettings").Items().Item("TASK3").Checked());
    press(form, "smtSettings", "TASK1");
    EXPECT_TRUE(locked(form));
    press(form, "smtActions", "CANCEL");
    EXPECT_FALSE(locked(form));
    EXPECT_TRUE(find<SmartUI>(form, "smtSettings").Items().Item("TASK3").Checked());
    press(form, "smtActions", "DONE");
  });
  EXPECT_EQ(told, "closed 2 2 | ");
}

TEST_F(UpdateOnFormTest, escapeCarriesNothingOutWhileTheTabsAreLocked) {
  const std::string told = run([](Form& form) {
    press(form, "smtSettings", "TASK4");
    int escape = 27;
    form.keyDown(escape);
  });
  EXPECT_EQ(told, "closed 2 2 | ");
}

TEST_F(UpdateOnFormTest, aTransitionThatFailsIsReportedAndNothingIsSaved) {
  database_.run("INSERT INTO PROJECTS VALUES ('KEY-O', 'Outlook Tasks')");
  database_.setValue("OutlookProject", "KEY-O");
  const std::string told = run([](Form& form) {
    press(form, "smtSettings", "TASK1");
    press(form, "smtActions", "UPDATE");
    EXPECT_FALSE(form.isLoaded());
  });
  EXPECT_EQ(told, "update 02 KEY-O 2 2 | ");
  ASSERT_EQ(database_.platform.errorReport.reports.size(), 1U);
  EXPECT_EQ(database_.platform.errorReport.reports[0].procedure, "smtActions_Click");
}

}  // namespace
}  // namespace tarnel
