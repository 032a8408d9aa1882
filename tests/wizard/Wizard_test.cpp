#include <gtest/gtest.h>

#include "Form.h"
#include "TaskDatabase.h"
#include "TaskDatabaseScript.h"
#include "TestPlatform.h"
#include "clsTarnelOutWizard.h"
#include "ctDropDate.h"

namespace tarnel::test {
namespace {

// Runs the wizard as a host does; each test looks into the modal window.
struct WizardTest : testing::Test {
  WizardTest() { platform_.use(database_.provider); }

  void run(std::function<void(Form&)> look, Date date = {}) {
    platform_.desktop.onModal = std::move(look);
    wizard_.Setup(false, "ALL", "M60", database_.connect(), date);
  }
  std::string title() {
    std::string text;
    run([&](Form& form) { text = form.Caption(); });
    return text;
  }
  Date dayShownFor(Date date) {
    Date shown;
    const auto look = [&](Form& form) {
      for (const Control* control : form.controls())
        if (const auto* box = dynamic_cast<const ctDropDate*>(control)) shown = box->Date();
    };
    run(look, date);
    return shown;
  }

  TaskDatabase database_{host::taskDatabaseScript()};
  TestPlatform platform_;
  clsTarnelOutWizard wizard_;
};

TEST_F(WizardTest, titleNamesTheProfileWhoseMailboxIsWorkedOn) {
  EXPECT_EQ(title(), "Tarnel Outlook Wizard");
  database_.run("UPDATE Settings SET SetSettingValue = 'R && D' WHERE SetSettingSection = 'OutlookProfileString'");
  EXPECT_EQ(title(), "Tarnel Outlook Wizard - R & D");
}

TEST_F(WizardTest, aHostsDayFrom1001OnIsShownAndAnyOtherMeansToday) {
  EXPECT_EQ(dayShownFor(Date{1001.25}), Date{1001});
  EXPECT_EQ(dayShownFor(Date{1000.9}), Date::of(2026, 11, 19));
}

}  // namespace
}  // namespace tarnel::test
