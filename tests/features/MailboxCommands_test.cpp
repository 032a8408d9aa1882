#include <gtest/gtest.h>

#include "ProgramRun.h"

namespace tarnel::test {
namespace {

using nlohmann::json;

struct MailboxCommands : testing::Test {
  json items(const std::string& options = "--mailbox a.mailbox") {
    return json::parse(run("mailbox list --json " + options).output);
  }

  ProgramRun run;
  // A task, and a series of which one occurrence was moved.
  const std::string calendar =
      "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:x\r\n"
      "BEGIN:VTODO\r\nUID:1\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:Pay rent\r\nDUE;VALUE=DATE:20261201\r\nEND:VTODO\r\n"
      "BEGIN:VEVENT\r\nUID:2\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:Talk\r\nDTSTART:20261119T090000\r\n"
      "DTEND:20261119T100000\r\nRRULE:FREQ=WEEKLY;COUNT=3\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:2\r\nDTSTAMP:20260101T000000Z\r\nRECURRENCE-ID:20261126T090000\r\nSUMMARY:Talk moved\r\n"
      "DTSTART:20261126T110000\r\nDTEND:20261126T120000\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
};

TEST_F(MailboxCommands, importedTwiceIsThereOnceAndComesBackFromAnExport) {
  run.home.write("in.ics", calendar);
  EXPECT_EQ(run("mailbox import in.ics --mailbox a.mailbox").output, "3 added, 0 updated, 0 unchanged, 0 skipped\n");
  EXPECT_EQ(run("mailbox --mailbox a.mailbox import in.ics").output, "0 added, 0 updated, 3 unchanged, 0 skipped\n");
  EXPECT_EQ(valuesOf(items()[0], {"kind", "dueDate", "start"}), "task|2026-12-01 00:00:00|null|");
  EXPECT_EQ(items()[1]["start"], "2026-11-19 09:00:00");
  EXPECT_EQ(run("mailbox export out.ics --mailbox a.mailbox").exitCode, 0);
  EXPECT_EQ(run("mailbox import out.ics --mailbox b.mailbox").exitCode, 0);
  EXPECT_EQ(items("--mailbox b.mailbox").size(), 3U);
}

TEST_F(MailboxCommands, itemsAreMovedWhereTheyBelongDeletedAndForGoodFromDeletedItems) {
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
