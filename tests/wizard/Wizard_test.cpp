#include <gtest/gtest.h>

#include "Conversions.h"
#include "Failure.h"
#include "Label.h"
#include "SSSplitter.h"
#include "SftTabs.h"
#include "SmartUI.h"
#include "SqliteProvider.h"
#include "TaskDatabase.h"
#include "TaskDatabaseScript.h"
#include "TestPlatform.h"
#include "clsTarnelOutWizard.h"
#include "createDatabase.h"
#include "frmOutWiz.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

// Runs the wizard as a host does; each test acts inside the modal window.
class WizardTest : public ::testing::Test {
 protected:
  WizardTest() {
    platform_.use(provider_);
    sqlite::createDatabase(path_, host::taskDatabaseScript());
    wizardEvents_.push_back(wizard_.CloseTheWizard.connect([this] { events_ += "CloseTheWizard "; }));
  }

  void run(std::function<void(Form&)> act, bool appointments = false, Date date = {}) {
    platform_.desktop.onModal = [this, act = std::move(act)](Form& form) {
      ++shown_;
      act(form);
    };
    wizard_.Setup(appointments, "ALL", "M60", connect(), date);
    EXPECT_TRUE(openForms().empty());
  }

  template <class Wanted>
  static Wanted& control(Form& form, const std::string& name) {
    for (Control* candidate : form.controls())
      if (candidate->fullName() == name) return dynamic_cast<Wanted&>(*candidate);
    throw Failure(failure::noSuchItem, "no control " + name);
  }

  static void press(Form& form, const std::string& name, const std::string& key) {
    auto& bar = control<SmartUI>(form, name);
    bar.press(bar.Items().Item(key));
  }

  std::string stored(const std::string& statement) {
    std::string text;
    for (const ado::Row& row : provider_.open(connect())->query(statement).rows)
      for (const Variant& value : row) text += textOrEmpty(value) + "|";
    return text;
  }
  void execute(const std::string& statement) { provider_.open(connect())->execute(statement); }
  std::string storedLayout() {
    return stored(
        "SELECT SetSettingValue FROM Settings WHERE SetSettingSection = 'OutWizard' "
        "ORDER BY setSettingDisplayOrd");
  }
  std::string connect() const { return "Provider=SQLite;Data Source=" + path_.string() + ";"; }

  test::TestPlatform platform_;
  test::TempFolder folder_;
  std::filesystem::path path_ = folder_ / "Tasks.tarnel";
  sqlite::SqliteProvider provider_;
  clsTarnelOutWizard wizard_;
  std::vector<Connection> wizardEvents_;
  std::string events_;
  int shown_ = 0;
};

TEST_F(WizardTest, opensOnTheTasksTabAtItsFirstPlace) {
  run([&](Form& form) {
    EXPECT_EQ(form.Caption(), "Tarnel Outlook Wizard");
    EXPECT_EQ(form.placement(), (Placement{3705, 1000, 8400, 6000}));  // 5805 is below the smallest height
    EXPECT_TRUE(control<Control>(form, "picWiz(1)").Visible());
    EXPECT_FALSE(control<Control>(form, "picWiz(0)").Visible());
    EXPECT_TRUE(control<Label>(form, "lblHeader").Caption().starts_with("Select and copy Tasks to and from Outlook"));
    EXPECT_EQ(control<SmartUI>(form, "smtSkedPickTasks").Items().Item("TASKPICK").Tag(), "T00");
  });
  EXPECT_EQ(shown_, 1);
  EXPECT_EQ(events_, "");  // the form was taken down by the end of the modal run, as by its close box
  EXPECT_EQ(storedLayout(), "3705|1000|8400|5805|0.5|0.5|");
}

TEST_F(WizardTest, titleNamesTheProfileWhoseMailboxIsWorkedOn) {
  execute("UPDATE Settings SET SetSettingValue = 'R && D' WHERE SetSettingSection = 'OutlookProfileString'");
  run([](Form& form) { EXPECT_EQ(form.Caption(), "Tarnel Outlook Wizard - R & D"); });
}

TEST_F(WizardTest, opensOnTheAppointmentsTabAndOnTheHostsDay) {
  run(
      [&](Form& form) {
        EXPECT_EQ(control<SftTabs>(form, "tabWiz").Current(), 1U);
        EXPECT_TRUE(control<Control>(form, "picWiz(0)").Visible());
        EXPECT_EQ(control<ctDropDate>(form, "ctDeadline").Date(), Date{1001});
      },
      true, Date{1001.25});
  run([&](Form& form) { EXPECT_EQ(control<ctDropDate>(form, "ctDeadline").Date(), Date::of(2026, 11, 19)); }, false,
      Date{1000.9});
}

TEST_F(WizardTest, settingsThatCannotBeReadEndTheWizardAndStayAsTheyWere) {
  for (const char* damage : {"UPDATE Settings SET SetSettingValue = 'many' WHERE SetSettingSection = 'Points'",
                             "UPDATE Settings SET SetSettingValue = 'wide' WHERE SetSettingSection = 'OutWizard'",
                             "UPDATE Settings SET SetSettingValue = 'late' WHERE SetSettingName = 'D5End'",
                             "UPDATE Settings SET SetSettingValue = NULL WHERE SetSettingName = 'Month1'",
                             "INSERT INTO Settings (SetUser, SetSettingSection, SetSettingName, SetSettingValue, "
                             "setSettingDisplayOrd) VALUES ('1', 'Difficulty', 'Sixth', 'Sixth', 9)"}) {
    std::filesystem::remove(path_);
    sqlite::createDatabase(path_, host::taskDatabaseScript());
    run([](Form&) {});  // makes the rows of the layout
    execute(damage);
    const std::string before = stored("SELECT * FROM Settings");
    platform_.errorReport.reports.clear();
    events_.clear();
    shown_ = 0;
    run([](Form&) {});
    EXPECT_EQ(shown_, 0) << damage;
    ASSERT_EQ(platform_.errorReport.reports.size(), 1U) << damage;
    EXPECT_EQ(platform_.errorReport.reports[0].procedure, "loadMySettings");
    EXPECT_EQ(events_, "CloseTheWizard ");
    EXPECT_EQ(stored("SELECT * FROM Settings"), before) << damage;
  }
}

TEST_F(WizardTest, aFailedOpenIsReportedByTheRecordClassAndByItsCaller) {
  execute("DROP TABLE TASKS");
  run([](Form&) {});
  ASSERT_EQ(platform_.errorReport.reports.size(), 2U);
  EXPECT_EQ(platform_.errorReport.reports[0].module, "clsTaskList");
  EXPECT_EQ(platform_.errorReport.reports[1].procedure, "GetTarnelTasks");
  EXPECT_EQ(platform_.errorReport.reports[1].number, 91);
}

TEST_F(WizardTest, aShownFormKeepsNothingAndRaisesNothingWhenAFailureTakesItDown) {
  run([&](Form& form) {
    execute("DROP TABLE TASKS");
    auto& picker = control<SmartUI>(form, "smtSkedPickTasks");
    SmartItem& pick = picker.Items().Item("TASKPICK");
    picker.choose(pick, pick.SubItems().Item("T01"));
    EXPECT_FALSE(form.isLoaded());
  });
  EXPECT_EQ(events_, "");
}

TEST_F(WizardTest, panesAreLaidOutInTheirBands) {
  run([&](Form& form) {
    form.Move(0, 0, 10000, 8000);
    const auto place = [&](const char* name) { return control<Control>(form, name).placement(); };
    const Placement pane = place("paneAppt(0)");
    EXPECT_EQ(place("smtSkedPickTasks"), (Placement{0, 330, pane.width, 1350}));
    EXPECT_EQ(place("smtTaskList(0)"), (Placement{0, 1680, pane.width, pane.height - 2010}));
    EXPECT_EQ(place("smtTaskActions(0)"), (Placement{0, pane.height - 330, pane.width, 330}));
    EXPECT_EQ(place("picWiz(1)").width, 9900);
    EXPECT_EQ(place("lblHeader"), (Placement{60, 75, 9880, 570}));
    const Placement day = place("paneAppt(1)");
    EXPECT_EQ(place("ctDaySked(0)"), (Placement{0, 630, day.width - 10, day.height - 990}));
    EXPECT_EQ(place("ctDaySked(1)").top, 660);
    form.Move(0, 0, 100, 100);
    EXPECT_EQ(form.placement(), (Placement{0, 0, 7600, 6000}));
  });
}

}  // namespace
}  // namespace tarnel
