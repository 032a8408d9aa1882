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
  std::string keyOf(const std::string& control, const std::string& caption, const std::string& before = {}) {
    return row(control, caption, before).value("key", "");
  }
  // The mailbox's items with this subject.
  std::vector<json> outlook(const std::string& subject) {
    std::vector<json> found;
    for (const json& item : json::parse(run("mailbox list --json").output))
      if (item["subject"] == subject) found.push_back(item);
    return found;
  }
  // Checks a row and presses an action bar's item; the text of the message behind it.
  std::string act(const std::string& side, const std::string& key, const std::string& action, bool yes = true) {
    const ProgramResult result = drive((yes ? "answer yes\n" : "") + ("check smtTaskList(" + side + ") \"" + key) +
                                       "\" on\nclick smtTaskActions(" + side + ") " + action + "\n");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    std::string text;
    for (const json& fact : result.facts())
      if (fact.contains("message")) text = fact["message"]["text"];
    return text;
  }

  ProgramRun run;
  const std::string tarnel = "smtTaskList(0)";
  const std::string outlookList = "smtTaskList(1)";
  const std::string allOpen = "choose smtSkedPickTasks TASKPICK Tarnel\n";
};

TEST_F(TaskStories, bothListsTellLinkedRowsByTheirPictures) {
  EXPECT_EQ(row(tarnel, "File the tax return")["picture"], "OUTLOOK");
  EXPECT_EQ(row(tarnel, "Repair the garden fence")["picture"], "NONE");
  EXPECT_EQ(row(outlookList, "File the tax return")["picture"], "Tarnel");
  EXPECT_EQ(row(outlookList, "Order business cards")["picture"], "OUTLOOK");
  EXPECT_TRUE(row(outlookList, "Hand in the travel expenses").is_null()) << "it is done";
}

TEST_F(TaskStories, firstCopyLinksBothSidesAndTheSecondUpdates) {
  const std::string key = keyOf(tarnel, "Repair the garden fence");
  act("0", key, "UPDATE");
  ASSERT_EQ(outlook("Repair the garden fence").size(), 1U);
  const json item = outlook("Repair the garden fence")[0];
  EXPECT_EQ(item["userProperties"]["BrackwellTarnelGUID"], key);
  EXPECT_EQ(item["folder"], "Tasks");
  EXPECT_EQ(item["totalWork"], 240);
  EXPECT_EQ(row(tarnel, "Repair the garden fence")["picture"], "OUTLOOK");

  act("0", key, "UPDATE");
  EXPECT_EQ(outlook("Repair the garden fence").size(), 1U);
  run("mailbox delete " + std::string(item["entryId"]));
  run("mailbox delete " + std::string(item["entryId"]));
  EXPECT_TRUE(outlook("Repair the garden fence").empty());
  act("0", key, "UPDATE");
  EXPECT_EQ(outlook("Repair the garden fence").size(), 1U) << "an item that has gone comes anew";
}

TEST_F(TaskStories, outlookTaskBecomesATaskOnce) {
  const std::string entry = keyOf(outlookList, "Order business cards");
  EXPECT_EQ(act("1", entry, "UPDATE"), "Tasks created: 1. Tasks in Tarnel updated: 0.");
  const json task = row(tarnel, "Order business cards");
  ASSERT_FALSE(task.is_null());
  EXPECT_EQ(outlook("Order business cards")[0]["userProperties"]["BrackwellTarnelGUID"], task["key"]);
  EXPECT_EQ(act("1", entry, "UPDATE"), "Tasks created: 0. Tasks in Tarnel updated: 1.");
}

TEST_F(TaskStories, doneOnOneSideIsDoneOnTheOther) {
  const std::string key = keyOf(tarnel, "File the tax return");
  act("0", key, "MARKASDONE");
  EXPECT_TRUE(row(tarnel, "File the tax return", allOpen).is_null());
  EXPECT_EQ(outlook("File the tax return")[0]["status"], 2);

  act("1", keyOf(outlookList, "Write the launch plan"), "MARKASDONE");
  EXPECT_EQ(outlook("Write the launch plan")[0]["status"], 2);
  EXPECT_TRUE(row(tarnel, "Write the launch plan", allOpen).is_null());
}

TEST_F(TaskStories, deleteAsksAndANoKeepsTheTask) {
  const std::string key = keyOf(tarnel, "Repair the garden fence");
  act("0", key, "DELETE", false);
  EXPECT_FALSE(row(tarnel, "Repair the garden fence").is_null());
  act("0", key, "DELETE");
  EXPECT_TRUE(row(tarnel, "Repair the garden fence").is_null());
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
