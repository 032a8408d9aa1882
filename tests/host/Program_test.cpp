#include <gtest/gtest.h>

#include <map>

#include "ProgramRun.h"
#include "SqliteProvider.h"

namespace tarnel::test {
namespace {

struct Program : testing::Test {
  ProgramResult drive(const std::string& commands, const std::string& options = {}) {
    return run("drive --database tasks.db " + options, commands);
  }
  std::string count(const std::string& fromAndWhere) {
    const auto session = provider.open("Data Source=\"" + (run.home / "tasks.db").string() + "\";");
    return std::to_string(*session->query("SELECT COUNT(*) FROM " + fromAndWhere).rows[0][0].get<std::int32_t>());
  }

  ProgramRun run;
  sqlite::SqliteProvider provider;
};

TEST_F(Program, newMakesADatabaseThatTheWizardOpensOn) {
  EXPECT_EQ(run("new tasks.db").exitCode, 0);
  const ProgramResult empty = drive("list smtTaskList(0)\nshow\n");
  EXPECT_EQ(empty.exitCode, 0) << empty.errors;
  EXPECT_TRUE(empty.reply("list")["items"].empty());
  const auto shown = empty.reply("show");
  EXPECT_EQ(valuesOf(shown, {"tab", "panel"}), "0|1|");
  EXPECT_EQ(shown["header"].get<std::string>().find("Select and copy Tasks to and from Outlook"), 0U);
  EXPECT_EQ(shown["form"], R"({"name":"frmOutWiz","left":3705,"top":1000,"width":8400,"height":6000})"_json);
  EXPECT_EQ(empty.facts().back(), R"({"returned":true})"_json);
  EXPECT_EQ(count("TASKS"), "0");
  EXPECT_EQ(count("Settings WHERE SetSettingSection='DateFormats'"), "44");
  const std::string values = "SetSettingValue IN ('3705', '1000', '8400', '5805', '0.5')";
  EXPECT_EQ(count("Settings WHERE SetSettingSection='OutWizard' AND " + values), "6") << "made by the first start";
}

TEST_F(Program, demoShowsCurrentOpenTasksMostPointsFirst) {
  EXPECT_EQ(run("new sub/folder/tasks.db --demo").exitCode, 0);
  const ProgramResult result = run("drive --database sub/folder/tasks.db", "list smtTaskList(0)\n");
  const auto items = result.reply("list")["items"];
  ASSERT_EQ(items.size(), 13U) << result.output;
  EXPECT_EQ(valuesOf(items[0], {"caption", "picture"}), "File the tax return|OUTLOOK|");
  EXPECT_EQ(valuesOf(items[3], {"caption", "toolTip", "picture"}),
            "Repair the garden fence|Scheduled: 4:00  Time Needed: 4:00|NONE|");
  EXPECT_EQ(items[10]["caption"], "Sow tomatoes && basil");
}

TEST_F(Program, demoShowsOpenOutlookTasksLinkedOnesByTheirPicture) {
  run("new tasks.db --demo");
  std::map<std::string, std::string> pictures;
  const auto list = drive("list smtTaskList(1)\n").reply("list");
  for (const auto& item : list["items"]) pictures[item["caption"]] = item["picture"];
  EXPECT_EQ(pictures["File the tax return"], "Tarnel");
  EXPECT_EQ(pictures["Order business cards"], "OUTLOOK");
  EXPECT_FALSE(pictures.contains("Hand in the travel expenses")) << "it is done";
}

TEST_F(Program, newNeverTouchesADatabaseOrAMailboxThatIsThere) {
  for (const std::string there : {"a.db", "a.mailbox"}) {
    run.home.write(there, "precious");
    const ProgramResult result = run("new a.db --demo --mailbox a.mailbox");
    EXPECT_EQ(result.exitCode, 1) << there;
    EXPECT_NE(result.errors.find(there + "\" exists already"), std::string::npos) << result.errors;
    EXPECT_EQ(contentsOf(run.home / there), "precious");
    std::filesystem::remove(run.home / there);
    EXPECT_FALSE(std::filesystem::exists(run.home / "a.db") || std::filesystem::exists(run.home / "a.mailbox"));
  }
}

TEST_F(Program, wizardMakesTheUsersOwnDatabaseWithItsFirstUse) {
  const std::string noScreen = "unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM; ";
  EXPECT_NE(std::system((noScreen + run.shellCommand("wizard 2>errors")).c_str()), 0);
  EXPECT_TRUE(std::filesystem::exists(run.home / "tarnel/TarnelData.db")) << contentsOf(run.home / "errors");
}

TEST_F(Program, lostOutputIsAFailure) {
  for (const char* command : {"new", "drive", "--help"}) {
    EXPECT_NE(std::system((run.shellCommand(command) + " </dev/null >/dev/full 2>errors").c_str()), 0) << command;
    EXPECT_NE(contentsOf(run.home / "errors").find("output can't be written"), std::string::npos) << command;
  }
}

TEST_F(Program, wrongUsageIsCodeTwoAndHelpIsNone) {
  for (const char* arguments : {"", "fly", "new a b", "drive --date 2026-02-30", "drive --date 1902-09-26",
                                "drive --interval 7", "drive --hours night", "pictures", "wizard --colour red"}) {
    const ProgramResult result = run(arguments);
    EXPECT_EQ(result.exitCode, 2) << arguments;
    EXPECT_FALSE(result.errors.empty()) << arguments;
  }
  for (const char* arguments : {"--help", "drive --help", "new --help"}) {
    const ProgramResult result = run(arguments);
    EXPECT_EQ(result.exitCode, 0) << arguments;
    EXPECT_NE(result.output.find("Usage"), std::string::npos) << arguments;
  }
}

TEST_F(Program, optionsReachTheWizard) {
  run("new \"it's \\\"my\\\"; tasks.db\"");
  const ProgramResult result =
      run("drive --database \"it's \\\"my\\\"; tasks.db\" --date 2026-11-19 --appointments", "show\n");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_EQ(valuesOf(result.reply("show"), {"date", "tab", "panel"}), "2026-11-19|1|0|");
}

}  // namespace
}  // namespace tarnel::test
