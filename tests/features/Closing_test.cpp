#include "Story.h"

namespace tarnel {
namespace {

class Closing : public test::Story {
 protected:
  void setMode(const std::string& mode) {
    change("UPDATE Settings SET SetSettingValue = '" + mode + "' WHERE SetSettingName = 'OutTaskSetting'");
  }
  std::string saved() {
    return rows("SELECT SetSettingValue FROM Settings WHERE SetSettingName = 'meWidth'") +
           rows("SELECT SetSettingValue FROM Settings WHERE SetSettingName = 'OutTaskSetting'");
  }
};

TEST_F(Closing, eachWayOutHasItsEventsInTheirOrderAndItsOwnWayWithTheSettings) {
  const std::string unchanged = "8400\n2\n";
  const std::string edited = "tab 2\nclick smtSettings TASK4\n";
  const std::string modes = "event: UpdateOutlookSettings newAppt=2 newProfile=\"\" newTask=";
  struct Way {
    std::string commands;
    std::string told;
    std::string saved;
  };
  const Way ways[] = {
      {"click smtActions DONE\n", "event: CloseTheWizard\n", "9000\n2\n"},
      {"key 13\n", "event: CloseTheWizard\n", unchanged},
      {"key 27\n", "event: CloseTheWizard\n", unchanged},
      {edited + "key 27\n", "event: CloseTheWizard\n", unchanged},
      {"closebox\n", "", unchanged},
      {edited + "closebox\n", "", unchanged},
      {"", "", unchanged},
      {edited + "click smtActions CANCEL\nclick smtActions DONE\n", "event: CloseTheWizard\n", "9000\n2\n"},
      {edited + "click smtActions UPDATE\n",
       modes + "3\nevent: ImportFromOutlook\nevent: OutlookPrefsChanged\nevent: OutlookPrefsChanged\n"
               "event: CloseTheWizard\n",
       "9000\n3\n"}};
  EXPECT_EQ(drive("").exitCode, 0);
  for (const Way& way : ways) {
    change("UPDATE Settings SET SetSettingValue = '8400' WHERE SetSettingName = 'meWidth'");
    setMode("2");
    EXPECT_EQ(told("resize 9000 7000\n" + way.commands), way.told + "returned\n") << way.commands;
    EXPECT_EQ(saved(), way.saved) << way.commands;
  }
}

TEST_F(Closing, transitionsTellTheHostInTheirOrder) {
  const std::string prefs = "event: OutlookPrefsChanged\n";
  const std::string import = "event: ImportFromOutlook\n";
  struct Transition {
    const char* from;
    const char* item;
    std::string told;  // between the update and the close
  };
  const Transition transitions[] = {{"0", "TASK2", import + prefs},
                                    {"0", "TASK4", import + prefs + "event: TurnOnOutlookCurrentTasks\n"},
                                    {"1", "TASK4", import + prefs},
                                    {"3", "TASK3", "event: TurnOffOutlookCurrentTasks\n"},
                                    {"2", "TASK3", ""}};
  for (const Transition& transition : transitions) {
    setMode(transition.from);
    const std::string text =
        told("tab 2\nclick smtSettings " + std::string(transition.item) + "\nclick smtActions UPDATE\n");
    EXPECT_EQ(text.find("event: UpdateOutlookSettings"), 0U) << text;
    EXPECT_EQ(text.substr(text.find('\n') + 1), transition.told + prefs + "event: CloseTheWizard\nreturned\n")
        << transition.from << " to " << transition.item;
  }
}

TEST_F(Closing, commandsBehindTheEndAreNotCarriedOut) {
  EXPECT_EQ(drive("key 27\nshow\nlist smtActions\n").reply("show"), nullptr);
}

}  // namespace
}  // namespace tarnel
