#include "Story.h"

namespace tarnel::test {
namespace {

struct UnusualContents : Story {
  std::string pick(const std::string& caption) {
    return listed("0", "choose smtSkedPickTasks TASKPICK \"" + caption + "\"\n");
  }
};

TEST_F(UnusualContents, projectNamedLikeAPickIsNeverPickedAndOneWithAQuoteInItsKeyIs) {
  change("INSERT INTO PROJECTS VALUES ('P1', 'Current Tasks')");
  addTask("A", "Current");
  addTask("B", "Of the project", {{"tskProjectKey", "'P1'"}, {"tskCurrent", "0"}});
  EXPECT_EQ(pick("Tarnel"), "Current|NONE\nOf the project|NONE\n");
  EXPECT_EQ(
      listed("0", "choose smtSkedPickTasks TASKPICK Tarnel\nchoose smtSkedPickTasks TASKPICK \"Current Tasks\"\n"),
      "Current|NONE\n");
  change("INSERT INTO PROJECTS VALUES ('it''s', 'Quoted')");
  addTask("Q", "Of it", {{"tskProjectKey", "'it''s'"}, {"tskCurrent", "0"}});
  EXPECT_EQ(pick("Quoted"), "Of it|NONE\n");
}

TEST_F(UnusualContents, fiveThousandProjectsAreAllOfferedByName) {
  change("DELETE FROM PROJECTS");
  change(
      "INSERT INTO PROJECTS SELECT 'P' & n, 'Project ' & n FROM (WITH RECURSIVE c(n) AS "
      "(SELECT 10000 UNION ALL SELECT n + 1 FROM c WHERE n < 14999) SELECT n FROM c)");
  addTask("A", "Of the last", {{"tskProjectKey", "'P14999'"}});
  const auto items = drive("list smtSkedPickTasks\n").reply("list")["items"];
  EXPECT_EQ(items[1]["subItems"].size(), 5005U);
  EXPECT_EQ(items[1]["subItems"].back()["caption"], "Project 14999");
  EXPECT_EQ(pick("Project 14999"), "Of the last|NONE\n");
}

TEST_F(UnusualContents, longForeignAndBrokenLinesGoThereAndBackUnchanged) {
  const std::string contents[] = {std::string(10000, 'x'), "\u05e9\u05dc\u05d5\u05dd \u0645\u0631\u062d\u0628\u0627",
                                  "two\r\nlines\nand three", "a\tb \"quoted\" back\\slash", "\u202eoverride"};
  std::string captions;
  for (const std::string& text : contents) {
    addTask("K" + std::to_string(captions.size()), text);
    captions += text + "|NONE\n";
  }
  EXPECT_EQ(listed("0").size(), captions.size());
  drive(onAll("0", "UPDATE"));
  for (const std::string& text : contents) {
    bool found = false;
    for (const auto& item : items()) found = found || item["subject"] == text;
    EXPECT_TRUE(found) << text.substr(0, 40);
  }
  const std::string before = rows("SELECT tskGUIDID, tskDesc FROM TASKS ORDER BY tskGUIDID");
  drive(onAll("1", "UPDATE"));
  EXPECT_EQ(rows("SELECT tskGUIDID, tskDesc FROM TASKS ORDER BY tskGUIDID"), before);
}

}  // namespace
}  // namespace tarnel::test
