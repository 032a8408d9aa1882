#include "Story.h"

namespace tarnel::test {
namespace {

struct Closing : Story {
  std::string saved() { return setting("meWidth") + setting("OutTaskSetting"); }
};

TEST_F(Closing, eachWayOutHasItsEventsAndItsOwnWayWithTheSettings) {
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
    set("meWidth", "8400");
    set("OutTaskSetting", "2");
    EXPECT_EQ(told("resize 9000 7000\n" + way.commands), way.told + "returned\n") << way.commands;
    EXPECT_EQ(saved(), way.saved) << way.commands;
  }
}

TEST_F(Closing, commandsAfterTheEndAreNotCarriedOut) {
  EXPECT_EQ(drive("key 27\nshow\nlist smtActions\n").reply("show"), nullptr);
}

}  // namespace
}  // namespace tarnel::test
