#include <gtest/gtest.h>

#include "ProgramRun.h"
#include "SqliteProvider.h"

namespace tarnel {
namespace {

using test::ProgramResult;
using test::ProgramRun;

class Program : public testing::Test {
 protected:
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
  EXPECT_EQ(empty.reply("show")["meSizes"].size(), 6U);
  EXPECT_EQ(empty.facts().back(), R"({"returned":true})"_json);
  EXPECT_EQ(count("TASKS"), "0");
  EXPECT_EQ(count("Settings WHERE SetSettingSection='DateFormats'"), "44");
  EXPECT_EQ(count("Settings WHERE SetSettingSection='OutWizard'"), "6") << "made by the wizard's first start";
}

TEST_F(Program, demoShowsCurrentOpenTasksMostPointsFirst) {
  EXPECT_EQ(run("new sub/folder/tasks.db --demo").exitCode, 0);
  const ProgramResult result = run("drive --database sub/folder/tasks.db", "list smtTaskList(0)\n");
  const auto items = result.reply("list")["items"];
  ASSERT_EQ(items.size(), 13U) << result.output;
  EXPECT_EQ(items[0]["caption"], "File the tax return");
  EXPECT_EQ(items[0]["picture"], "OUTLOOK");
  EXPECT_EQ(items[3]["caption"], "Repair the garden fence");
  EXPECT_EQ(items[3]["toolTip"], "Scheduled: 4:00  Time Needed: 4:00");
  EXPECT_EQ(items[3]["picture"], "NONE");
  EXPECT_EQ(items[10]["caption"], "Sow tomatoes && basil");
}

TEST_F(Program, newNeverTouchesAFileThatIsThere) {
  run.home.write("tasks.db", "precious");
  const ProgramResult result = run("new tasks.db --demo");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.errors.find("tasks.db\" exists already"), std::string::npos) << result.errors;
  EXPECT_EQ(test::contentsOf(run.home / "tasks.db"), "precious");
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
  EXPECT_EQ(result.reply("show")["date"], "2026-11-19");
  EXPECT_EQ(result.reply("show")["tab"], 1);
  EXPECT_EQ(result.reply("show")["panel"], 0);
}

}  // namespace
}  // namespace tarnel
