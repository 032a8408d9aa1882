#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "Conversions.h"
#include "Form.h"
#include "Label.h"
#include "Panels.h"
#include "SmartUI.h"
#include "TaskDatabase.h"
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

  TaskDatabase database_;
  TestPlatform platform_;
  clsTarnelOutWizard wizard_;
};

// All that a view draws of a form, a control a line, with its items below it.
std::string described(Form& form, bool withItems) {
  std::ostringstream text;
  const auto place = [&text](const Placement& at) {
    text << " " << at.left << "," << at.top << " " << at.width << "x" << at.height;
  };
  const auto itemOf = [&text](SmartItem& item, const char* indent) {
    text << indent << int(item.Type()) << " " << item.Key() << " \"" << item.Caption() << "\" " << item.Picture() << " "
         << textOrEmpty(item.Value()) << (item.Checked() ? " checked" : "") << (item.Visible() ? "" : " hidden")
         << (item.Bold() ? " bold" : "") << " (" << item.ToolTipText() << ")\n";
  };
  for (Control* control : form.controls()) {
    text << control->fullName() << " \"" << control->accessibleName() << "\"";
    place(control->placement());
    if (control->container()) text << " in " << control->container()->fullName();
    if (!control->Visible()) text << " hidden";
    if (const auto* label = dynamic_cast<const Label*>(control))
      text << " look " << int(label->look()) << " \"" << label->Caption() << "\"";
    if (const auto* picture = dynamic_cast<const Image*>(control)) text << " " << picture->Picture();
    text << " (" << control->ToolTipText() << ")\n";
    if (auto* items = dynamic_cast<SmartUI*>(control); items && withItems) {
      text << "  look " << int(items->look()) << " \"" << items->title() << "\"\n";
      for (SmartItem& item : items->Items()) {
        itemOf(item, "  ");
        for (SmartItem& entry : item.SubItems()) itemOf(entry, "    ");
      }
    }
  }
  return text.str();
}

// Where a change is meant, what the failure leaves in the working folder is the new form.txt.
TEST_F(WizardTest, eachControlIsWhereAndWhatItShouldBe) {
  run([](Form& form) {
    std::string told = described(form, true) + "\nLarger:\n";
    form.Move(100, 200, 12345, 9876);
    told += described(form, false);
    EXPECT_EQ(told, contentsOf(WIZARD_FORM));
    if (HasFailure()) std::ofstream("form.txt") << told;
  });
}

TEST_F(WizardTest, titleNamesTheMailboxThatIsWorkedOn) {
  EXPECT_EQ(title(), "Tarnel Outlook Wizard");
  database_.run("UPDATE Settings SET SetSettingValue = 'R && D' WHERE SetSettingSection = 'OutlookProfileString'");
  EXPECT_EQ(title(), "Tarnel Outlook Wizard - R & D");
  Platform onOneFile = platform();
  onOneFile.mailbox = "/home/me/Q && A.mailbox";
  installPlatform(onOneFile);
  EXPECT_EQ(title(), "Tarnel Outlook Wizard - Q && A.mailbox");
}

TEST_F(WizardTest, aWorkingDayThatIsNoneBecomesTheDefaultAndIsToldOnce) {
  const auto shownFor = [this](const std::string& start, const std::string& end) {
    const auto set = [this](const std::string& name, const std::string& minute) {
      database_.run("UPDATE Settings SET SetSettingValue = '" + minute + "' WHERE SetSettingName = '" + name + "'");
    };
    set("D5Start", start), set("D5End", end);
    platform_.desktop.messages.clear();
    run({});
    std::size_t told = 0;
    for (const std::string& text : platform_.desktop.messageTexts())
      told += text.find("minute " + start + " (D5Start)") != std::string::npos;
    return std::to_string(session().theWorkDayStart) + "-" + std::to_string(session().theWorkDayEnd) + " told " +
           std::to_string(told);
  };
  EXPECT_EQ(shownFor("0", "1439"), "0-1439 told 0");
  EXPECT_EQ(shownFor("495", "496"), "495-496 told 0");
  for (const auto& [start, end] : {std::pair("-1", "1020"), {"480", "1440"}, {"1020", "480"}, {"540", "540"}})
    EXPECT_EQ(shownFor(start, end), "480-1020 told 1");
}

TEST_F(WizardTest, storedSettingsReachTheSessionAndEmptyOnesTheirDefaults) {
  const auto set = [this](const std::string& value, const std::string& where) {
    database_.run("UPDATE Settings SET " + value + " WHERE " + where);
  };
  set("SetSettingValue = SetSettingName, SetDefault = 'default'",
      "SetSettingSection IN ('Importance Level', 'Difficulty')");
  set("SetSettingValue = setSettingDisplayOrd + 100, SetDefault = 7", "SetSettingSection = 'Points'");
  set("SetSettingValue = ''", "SetSettingName IN ('Importance1', 'TimeLong')");
  set("SetSettingValue = Null", "SetSettingName = 'Difficulty3'");
  set("SetSettingValue = '1'", "SetSettingName = 'OutTaskSetting'");
  set("SetSettingValue = '3'", "SetSettingName = 'OutApptSetting'");
  set("SetSettingValue = 'P2'", "SetSettingName = 'OutlookProject'");
  for (const auto& [name, value] : {std::pair{"D5Start", "481"},
                                    {"D5End", "1021"},
                                    {"HoursInDay", "9"},
                                    {"ApptColor", "111"},
                                    {"ApptOutlook", "222"}})
    set("SetSettingValue = '" + std::string(value) + "'", "SetSettingName = '" + std::string(name) + "'");
  database_.run("INSERT INTO Settings VALUES ('2', 'DateFormats', 'HoursInDay', '5', '', 99, '')");
  for (const char* project : {"'P1', 'Zoo'", "'P2', 'Attic'", "'P3', 'Mine'"})
    database_.run("INSERT INTO PROJECTS VALUES (" + std::string(project) + ")");
  run([](Form&) {
    const SessionState& state = session();
    std::ostringstream told;
    const auto tell = [&told](const auto& values) {
      for (const auto& value : values) told << value << " ";
      told << "\n";
    };
    tell(state.theImportanceNames);
    tell(state.theDifficultyNames);
    tell(state.thePointsTable);
    tell(state.theProjectKeys);
    tell(state.theProjectNames);
    tell(std::initializer_list<std::int32_t>{state.OutTaskSetting, state.OutApptSetting, state.theWorkDayStart,
                                             state.theWorkDayEnd, state.theOutlookApptColor});
    told << state.theDateFormats[dateFormat::hoursInDay] << " " << state.theDateFormats[dateFormat::apptColor] << " "
         << state.theOutlookProjectKey << " " << state.theOutlookProjectName;
    EXPECT_EQ(told.str(),
              "Importance0 default Importance2 Importance3 Importance4 \n"
              "Difficulty0 Difficulty1 Difficulty2 default Difficulty4 \n"
              "100 7 102 103 104 105 106 107 7 109 110 111 7 113 114 \n"
              "P2 P3 P1 \nAttic Mine Zoo \n1 3 481 1021 222 \n9 111 P2 Attic");
  });
}

TEST_F(WizardTest, aHostsDayFrom1001OnIsShownAndAnyOtherMeansToday) {
  EXPECT_EQ(dayShownFor(Date{1001.25}), Date{1001});
  EXPECT_EQ(dayShownFor(Date{1000.9}), Date::of(2026, 11, 19));
}

}  // namespace
}  // namespace tarnel::test
