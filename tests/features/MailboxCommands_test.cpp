#include <gtest/gtest.h>

#include <regex>

#include "ProgramRun.h"

namespace tarnel::test {
namespace {

using nlohmann::json;

struct MailboxCommands : testing::Test {
  json items(const std::string& options = "--mailbox a.mailbox") {
    return json::parse(run("mailbox list --json " + options).output);
  }
  // The plain list, each entry id as "ID".
  std::string listed() {
    return std::regex_replace(run("mailbox list --mailbox a.mailbox").output, std::regex("[0-9A-F]{48,64}"), "ID");
  }

  ProgramRun run;
  // A task, and a series of which one occurrence was moved.
  const std::string calendar =
      "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:x\r\n"
      "BEGIN:VTODO\r\nUID:1\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:Pay "
      "rent\r\nDUE;VALUE=DATE:20261201\r\nSTATUS:IN-PROCESS\r\n"
      "DESCRIPTION:all of it\r\nPRIORITY:1\r\nX-TARNEL-TOTAL-WORK:90\r\nX-TARNEL-ACTUAL-WORK:30\r\n"
      "X-TARNEL-USER-PROPERTY;X-NAME=Link:G-1\r\nEND:VTODO\r\n"
      "BEGIN:VEVENT\r\nUID:2\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:Talk\r\nDTSTART:20261119T090000\r\n"
      "DTEND:20261119T100000\r\nLOCATION:Room 5\r\nRRULE:FREQ=WEEKLY;COUNT=3\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:2\r\nDTSTAMP:20260101T000000Z\r\nRECURRENCE-ID:20261126T090000\r\nSUMMARY:Talk moved\r\n"
      "DTSTART:20261126T110000\r\nDTEND:20261126T120000\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
};

TEST_F(MailboxCommands, importedTwiceIsThereOnceAndComesBackFromAnExport) {
  run.home.write("in.ics", calendar);
  EXPECT_EQ(run("mailbox import in.ics --mailbox a.mailbox").output, "3 added, 0 updated, 0 unchanged, 0 skipped\n");
  EXPECT_EQ(run("mailbox --mailbox a.mailbox import in.ics").output, "0 added, 0 updated, 3 unchanged, 0 skipped\n");
  json all = items();
  for (json& item : all) item.erase("entryId");
  EXPECT_EQ(all[0],
            R"({"folder":"Tasks","kind":"task","subject":"Pay rent","body":"all of it","status":1,"importance":2,
    "dueDate":"2026-12-01 00:00:00","totalWork":90,"actualWork":30,"start":null,"end":null,"location":null,
    "allDay":null,"recurring":null,"userProperties":{"Link":"G-1"}})"_json);
  EXPECT_EQ(all[1],
            R"({"folder":"Calendar","kind":"appointment","subject":"Talk","body":"","status":null,"importance":1,
    "dueDate":null,"totalWork":null,"actualWork":null,"start":"2026-11-19 09:00:00","end":"2026-11-19 10:00:00",
    "location":"Room 5","allDay":false,"recurring":true,"userProperties":{}})"_json);
  EXPECT_EQ(listed(),
            "ID  Tasks  due 2026-12-01  Pay rent  (in progress)\n"
            "ID  Calendar  2026-11-19 09:00:00  Talk  (recurring)\n"
            "ID  Calendar  2026-11-26 11:00:00  Talk moved  (recurring)\n");
  EXPECT_EQ(run("mailbox export out.ics --mailbox a.mailbox").output, "3 written to out.ics\n");
  EXPECT_EQ(run("mailbox import out.ics --mailbox b.mailbox").exitCode, 0);
  EXPECT_EQ(items("--mailbox b.mailbox").size(), 3U);
}

TEST_F(MailboxCommands, exportTakesNoStoresPlace) {
  run.home.write("in.ics", calendar);
  run("mailbox import in.ics --mailbox a.mailbox");
  run("new tasks.db --mailbox other.mailbox");
  std::filesystem::create_symlink(run.home / "a.mailbox", run.home / "link.ics");
  run.home.write("tasks.db-wal", "");
  for (const std::string target : {"a.mailbox", "link.ics", "other.mailbox", "tasks.db", "tasks.db-wal"}) {
    const std::string before = contentsOf(run.home / target);
    const ProgramResult result = run("mailbox export " + target + " --mailbox a.mailbox");
    EXPECT_EQ(result.exitCode, 1) << target;
    EXPECT_NE(result.errors.find(target + "\" can't be written: it "), std::string::npos) << result.errors;
    EXPECT_EQ(contentsOf(run.home / target), before) << target;
  }
}

TEST_F(MailboxCommands, importThatSkipsTellsWhatAndFails) {
  run.home.write("in.ics",
                 "BEGIN:VCALENDAR\r\nBEGIN:VTODO\r\nUID:1\r\nSTATUS:COMPLETED\r\nEND:VTODO\r\nBEGIN:VTODO\r\n"
                 "UID:2\r\nX-TARNEL-STATUS:WAITING\r\nEND:VTODO\r\nBEGIN:VTODO\r\nUID:3\r\nEND:VTODO\r\n"
                 "BEGIN:VEVENT\r\nUID:4\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
  const ProgramResult result = run("mailbox import in.ics --mailbox a.mailbox");
  EXPECT_EQ(result.output, "3 added, 0 updated, 0 unchanged, 1 skipped\n");
  EXPECT_EQ(result.errors, "in.ics:13: the VEVENT has no DTSTART\n");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(listed(), "ID  Tasks    (complete)\nID  Tasks    (waiting)\nID  Tasks    (not started)\n");
}

TEST_F(MailboxCommands, itemsAreMovedWhereTheyBelongAndDeletedInTwoSteps) {
  run.home.write("in.ics", calendar);
  run("mailbox import in.ics --mailbox a.mailbox");
  const auto move = [this](const std::string& entryAndFolder) {
    return run("mailbox move " + entryAndFolder + " --mailbox a.mailbox");
  };
  const std::string entry = items()[0]["entryId"];
  EXPECT_EQ(run("mailbox delete " + entry + " --mailbox a.mailbox").exitCode, 0);
  EXPECT_EQ(items()[0]["folder"], "Deleted Items");
  EXPECT_EQ(move(entry + " tasks").exitCode, 0);
  EXPECT_EQ(items()[0]["folder"], "Tasks");

  const std::string occurrence = items()[2]["entryId"];
  const std::pair<std::string, const char*> refused[] = {
      {entry + " Calendar", "items of another kind"},
      {entry + " Attic", "no folder \"Attic\""},
      {occurrence + " 'Deleted Items'", "one occurrence of a series"}};
  for (const auto& [entryAndFolder, words] : refused) {
    const ProgramResult result = move(entryAndFolder);
    EXPECT_EQ(result.exitCode, 1) << words;
    EXPECT_NE(result.errors.find(words), std::string::npos) << result.errors;
  }
  EXPECT_EQ(run("mailbox delete garbage --mailbox a.mailbox").exitCode, 1);
  for (int i = 0; i < 2; ++i) run("mailbox delete " + entry + " --mailbox a.mailbox");
  EXPECT_EQ(items().size(), 2U);
}

TEST_F(MailboxCommands, profileNamesAMailboxUntilItIsRemoved) {
  EXPECT_EQ(run("profile add 'A & B' a.mailbox").exitCode, 0);
  EXPECT_EQ(run("profile list").output, "A & B\t" + (run.home / "a.mailbox").string() + "\n");
  EXPECT_TRUE(items("--profile 'A & B'").empty());
  EXPECT_EQ(run("profile add 'back\\slash' c.mailbox").exitCode, 1);
  EXPECT_FALSE(std::filesystem::exists(run.home / "c.mailbox"));
  EXPECT_EQ(run("profile remove 'A & B'").exitCode, 0);
  EXPECT_EQ(run("mailbox list --profile 'A & B'").exitCode, 1);
  EXPECT_TRUE(std::filesystem::exists(run.home / "a.mailbox"));
}

}  // namespace
}  // namespace tarnel::test
