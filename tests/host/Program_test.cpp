#include <gtest/gtest.h>
#include <sys/stat.h>

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

TEST_F(Program, aReportNamesTheVersionAndTheFilesInUse) {
  run.home.write("text", "no database");
  run("drive --database text --mailbox my.mailbox");
  const std::string told = contentsOf(run.home / "tarnel/errors.txt"), home = run.home.path().string();
  for (const std::string& fact : std::initializer_list<std::string>{"version:   1.14", "database:  " + home + "/text",
                                                                    "mailbox:   " + home + "/my.mailbox",
                                                                    "report in: " + home + "/tarnel/errors.txt"})
    EXPECT_NE(told.find("  " + fact), std::string::npos) << told;
}

TEST_F(Program, whatItMakesIsItsOwnersAlone) {
  run.home.write("a.ics", "BEGIN:VCALENDAR\r\nBEGIN:VTODO\r\nUID:1\r\nSUMMARY:x\r\nEND:VTODO\r\nEND:VCALENDAR\r\n");
  run.home.write("text", "no database");
  for (const char* command : {"new a.db --mailbox a.mailbox", "new demo.db --demo --mailbox demo.mailbox",
                              "profile add P p.mailbox", "mailbox import a.ics --mailbox b.mailbox",
                              "mailbox export out.ics --mailbox b.mailbox", "drive --database text"})
    run(command);
  for (const char* file : {"a.db", "a.mailbox", "demo.db", "demo.mailbox", "p.mailbox", "b.mailbox", "out.ics",
                           "tarnel/registry", "tarnel/registry.lock", "tarnel/errors.txt"})
    EXPECT_EQ(std::filesystem::status(run.home / file).permissions(), static_cast<std::filesystem::perms>(0600))
        << file;
}

// What a killed program leaves beside a file that is removed then would be taken for the new file's own.
TEST_F(Program, aStoreIsNotMadeBesideTheLogOfARemovedOne) {
  const std::string calendar = "BEGIN:VCALENDAR\r\nBEGIN:VTODO\r\nUID:1\r\nSUMMARY:x\r\nEND:VTODO\r\nEND:VCALENDAR\r\n";
  run.home.write("a.ics", calendar);
  const std::pair<std::string, std::string> made[] = {{"new a.db --mailbox a.mailbox", "a.db"},
                                                      {"new b.db --mailbox b.mailbox", "b.mailbox"},
                                                      {"new c.db --demo --mailbox c.mailbox", "c.db"},
                                                      {"mailbox import a.ics --mailbox d.mailbox", "d.mailbox"},
                                                      {"drive", "tarnel/TarnelData.db"},
                                                      {"drive", "tarnel/Outlook.mailbox"}};
  for (const auto& [command, file] : made) {
    std::filesystem::create_directories((run.home / file).parent_path());
    std::filesystem::remove(run.home / file);
    for (const std::string ending : {"-wal", "-journal"}) {
      run.home.write(file + ending, "changes");
      const ProgramResult result = run(command);
      EXPECT_EQ(result.exitCode, 1) << command;
      EXPECT_NE(result.errors.find(file + ending + "\" holds the last changes"), std::string::npos) << result.errors;
      EXPECT_FALSE(std::filesystem::exists(run.home / file)) << command;
      EXPECT_EQ(contentsOf(run.home / (file + ending)), "changes");
      run.home.write(file + ending, "");
    }
    run.home.write(file + "-shm", "an index of what is no longer there");
    EXPECT_EQ(run(command).exitCode, 0) << command;
    EXPECT_NE(contentsOf(run.home / (file + "-shm")), "an index of what is no longer there") << command;
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
  for (const char* arguments :
       {"", "fly", "new a b", "drive --date 2026-02-30", "drive --date 1902-09-26", "drive --date 9999-12-31",
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

TEST_F(Program, anEmptyNameIsNoOtherNameOfTheUsersOwnFile) {
  for (const char* command :
       {"mailbox --mailbox '' list", "mailbox list --mailbox ''", "drive --mailbox ''", "drive --database ''", "new ''",
        "new a.db --mailbox ''", "profile add P ''", "mailbox import ''", "mailbox export ''", "pictures ''"}) {
    const ProgramResult result = run(command);
    EXPECT_EQ(result.exitCode, 2) << command;
    EXPECT_NE(result.errors.find("A file needs a name"), std::string::npos) << result.errors;
  }
}

TEST_F(Program, whatIsNoMailboxIsNotTakenForOne) {
  std::filesystem::create_directory(run.home / "folder");
  mkfifo((run.home / "pipe").c_str(), 0600);
  run.home.write("text", "Dear diary");
  for (const std::string there : {"folder", "pipe", "text"})
    for (const std::string command : {"profile add P ", "new a.db --mailbox ", "mailbox list --mailbox "}) {
      const ProgramResult result = run(command + there);
      EXPECT_EQ(result.exitCode, 1) << command << there;
      EXPECT_NE(result.errors.find(there + "\" can't be used: "), std::string::npos) << result.errors;
    }
  EXPECT_EQ(run("profile list").output, "");
  EXPECT_FALSE(std::filesystem::exists(run.home / "a.db"));
}

TEST_F(Program, textsFromFilesCantControlATerminal) {
  const std::string calendar =
      "BEGIN:VCALENDAR\r\nBEGIN:VTODO\r\nUID:1\r\nSUMMARY:r\x1B[31me\xC2\x9B"
      "d\x7F \xC3\xA9\\nnext\r\nEND:VTODO\r\n"
      "BEGIN:V\x1B[31mX\r\nEND:V\x1B[31mX\r\nEND:VCALENDAR\r\n";
  run.home.write("a.ics", calendar);
  const ProgramResult imported = run("mailbox import a.ics --mailbox a.mailbox");
  const ProgramResult listed = run("mailbox list --mailbox a.mailbox");
  const ProgramResult missing = run("mailbox list --mailbox \"$(printf 'x\\033[31m')\"");
  EXPECT_NE(listed.output.find("  r?[31me?d? \xC3\xA9 next  "), std::string::npos) << listed.output;
  EXPECT_EQ(missing.exitCode, 1);
  EXPECT_EQ((imported.errors + listed.output + missing.errors).find('\x1B'), std::string::npos);
}

TEST_F(Program, theLastDayIsShownAndTheOneAfterItIsRefused) {
  run("new tasks.db");
  const auto facts = drive("date 9999-12-31\nshow\n", "--date 9999-12-30 --appointments").facts();
  EXPECT_EQ(facts.at(0)["error"], "The last day is 9999-12-30, not 9999-12-31");
  EXPECT_EQ(facts.at(1)["date"], "9999-12-30");
  EXPECT_EQ(facts.back(), R"({"returned":true})"_json);
}

TEST_F(Program, optionsReachTheWizard) {
  run("new \"it's \\\"my\\\"; tasks.db\"");
  const ProgramResult result =
      run("drive --database \"it's \\\"my\\\"; tasks.db\" --date 2026-11-19 --appointments --hours day --interval 20",
          "show\nlist smtTimebarSizer\n");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_EQ(valuesOf(result.reply("show"), {"date", "tab", "panel"}), "2026-11-19|1|0|");
  std::string chosen;
  const auto list = result.reply("list");
  for (const auto& item : list["items"])
    if (item["checked"]) chosen += item["key"].get<std::string>() + " ";
  EXPECT_EQ(chosen, "DAY M20 ");
}

}  // namespace
}  // namespace tarnel::test
