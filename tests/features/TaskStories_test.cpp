#include <gtest/gtest.h>

#include "ProgramRun.h"

namespace tarnel {
namespace {

using nlohmann::json;
using test::ProgramResult;
using test::ProgramRun;

class TaskStories : public testing::Test {
 protected:
  TaskStories() { EXPECT_EQ(run("new tasks.db --demo").exitCode, 0); }

  ProgramResult drive(const std::string& commands) { return run("drive --database tasks.db", commands); }
  json list(const std::string& control, const std::string& before = {}) {
    return drive(before + "list " + control + "\n").reply("list")["items"];
  }
  // The row with this caption; null when there is none.
  json row(const std::string& control, const std::string& caption, const std::string& before = {}) {
    for (const json& item : list(control, before))
      if (item["caption"] == caption) return item;
    return nullptr;
  }
  ProgramRun run;
  const std::string tarnel = "smtTaskList(0)";
  const std::string outlookList = "smtTaskList(1)";
};

TEST_F(TaskStories, bothListsTellLinkedRowsByTheirPictures) {
  EXPECT_EQ(row(tarnel, "File the tax return")["picture"], "OUTLOOK");
  EXPECT_EQ(row(tarnel, "Repair the garden fence")["picture"], "NONE");
  EXPECT_EQ(row(outlookList, "File the tax return")["picture"], "Tarnel");
  EXPECT_EQ(row(outlookList, "Order business cards")["picture"], "OUTLOOK");
  EXPECT_TRUE(row(outlookList, "Hand in the travel expenses").is_null()) << "it is done";
}

TEST_F(TaskStories, pickerShowsAProjectAndCompletedTasks) {
  EXPECT_TRUE(row(tarnel, "Order firewood", "choose smtSkedPickTasks TASKPICK \"House & Garden\"\n").is_null());
  const std::string withDone =
      "choose smtSkedPickTasks TASKPICK \"House & Garden\"\n"
      "choose smtSkedPickTasks SORTPICK \"Completed Tasks\"\n";
  EXPECT_FALSE(row(tarnel, "Order firewood", withDone).is_null());
  EXPECT_EQ(list(tarnel, withDone).size(), 10U);
}

TEST_F(TaskStories, outlookOutOfReachIsToldAndTheWizardStandsOn) {
  run.home.write("tarnel/Outlook.mailbox", "no mailbox");
  const ProgramResult result = drive("list " + tarnel + "\n");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_NE(result.output.find("Unable to access Outlook"), std::string::npos);
  EXPECT_EQ(result.reply("list")["items"].size(), 13U);
}

}  // namespace
}  // namespace tarnel
