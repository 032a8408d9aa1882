#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include "MailboxFixture.h"

namespace tarnel::mailbox {
namespace {

struct BadFilesTest : MailboxTest {
  std::string opening(const std::filesystem::path& path) {
    return failureOf([&] { Mailbox(path, Locale(), clock_); });
  }
  void run(const std::filesystem::path& path, const std::string& sql) {
    sqlite3* database = nullptr;
    sqlite3_open(path.c_str(), &database);
    ASSERT_EQ(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
    sqlite3_close(database);
  }
};

TEST_F(BadFilesTest, whatIsNoSoundMailboxFailsByNameAndIsNotTouched) {
  const std::string sound = test::contentsOf(path_);
  std::string newer = sound, damaged = sound;
  newer[63] = 2;
  for (std::size_t i = 4096; i < damaged.size(); ++i) damaged[i] = static_cast<char>(i * 7);
  run(folder_ / "other", "CREATE TABLE a(b)");
  const auto incomplete = folder_.write("incomplete", sound);
  run(incomplete, "PRAGMA journal_mode = DELETE; DELETE FROM folders WHERE id = 3; PRAGMA journal_mode = WAL");
  std::filesystem::create_hard_link(folder_.write("linked", sound), folder_ / "second name");
  const std::vector<std::pair<std::filesystem::path, std::string>> bad = {
      {folder_ / "linked", "several names"},
      {incomplete, "damaged"},
      {folder_.write("text", "Dear diary, " + std::string(500, 'x')), "no mailbox"},
      {folder_.write("empty", ""), "no mailbox"},
      {folder_ / "other", "no mailbox"},
      {folder_.write("cut", sound.substr(0, sound.size() - 1)), "cut short"},
      {folder_.write("head", sound.substr(0, 100)), "cut short"},
      {folder_.write("newer", newer), "it has version 2, and this program knows versions up to 1"},
      {folder_.write("damaged", damaged), "damaged"}};
  for (const auto& [path, problem] : bad) {
    const std::string before = test::contentsOf(path);
    const std::string told = opening(path);
    EXPECT_TRUE(contains(told, "440: The mailbox \"" + path.string() + "\" can't be used: ")) << told;
    EXPECT_TRUE(contains(told, problem));
    EXPECT_EQ(test::contentsOf(path), before) << path;
    EXPECT_FALSE(std::filesystem::exists(path.string() + "-wal")) << path;
  }
  EXPECT_TRUE(contains(opening(folder_ / "missing"), "no such file"));
  EXPECT_TRUE(contains(opening(folder_.path()), "it is no file"));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "missing"));
}

TEST_F(BadFilesTest, aProtectedFileOrFolderFailsAlsoInTheMiddle) {
  auto outlook = loggedOn();
  auto task = aTask(*outlook, "a");
  chmod(path_.c_str(), 0444);
  EXPECT_TRUE(contains(failureOf([&] { task->Save(); }), "write-protected"));
  EXPECT_TRUE(contains(opening(path_), "the file is write-protected"));
  chmod(path_.c_str(), 0644);
  chmod(folder_.path().c_str(), 0555);
  EXPECT_TRUE(contains(opening(path_), "its folder is write-protected"));
  chmod(folder_.path().c_str(), 0755);
  task->Save();
  EXPECT_EQ(itemsOf(*outlook, tasksFolder)->Count(), 1);
}

TEST_F(BadFilesTest, aFileThatVanishesInTheMiddleFailsEveryOperationOnTheStore) {
  auto outlook = loggedOn();
  auto task = aTask(*outlook, "a");
  task->Save();
  auto items = itemsOf(*outlook, tasksFolder);
  const auto elsewhere = folder_ / "elsewhere";
  std::filesystem::copy_file(path_, elsewhere);
  std::filesystem::rename(elsewhere, path_);
  EXPECT_TRUE(contains(failureOf([&] { task->Save(); }), "removed or replaced")) << "by a copy of itself";
  std::filesystem::rename(path_, elsewhere);
  const std::string removed = "removed or replaced";
  EXPECT_TRUE(contains(failureOf([&] { task->Save(); }), removed));
  EXPECT_TRUE(contains(failureOf([&] { items->Count(); }), removed));
  EXPECT_TRUE(contains(failureOf([&] { items->GetFirst(); }), removed));
  EXPECT_TRUE(contains(failureOf([&] { items->Item(1); }), removed));
  EXPECT_TRUE(contains(failureOf([&] { outlook->Session()->GetItemFromID(task->EntryID(), ""); }), removed));
  EXPECT_TRUE(contains(failureOf([&] { outlook->Session()->GetDefaultFolder(tasksFolder); }), removed));
  EXPECT_TRUE(contains(failureOf([&] { outlook->Session()->Logon(); }), "no such file"));
  EXPECT_TRUE(contains(failureOf([&] { outlook->CreateItem(outlook::ItemType::task); }), "isn't logged on"));
}

TEST_F(BadFilesTest, aLockedMailboxFailsWithoutHanging) {
  sqlite3* other = nullptr;
  sqlite3_open(path_.c_str(), &other);
  sqlite3_exec(other, "PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; SELECT * FROM store", nullptr, nullptr,
               nullptr);
  EXPECT_TRUE(contains(opening(path_), "another program has locked it"));
  sqlite3_close(other);
  EXPECT_EQ(opening(path_), "none");
}

TEST_F(BadFilesTest, createMakesAWholeFileOrNone) {
  const std::string before = test::contentsOf(path_);
  EXPECT_TRUE(contains(failureOf([&] { createMailbox(path_); }), "exists already"));
  EXPECT_EQ(test::contentsOf(path_), before);
  EXPECT_TRUE(contains(failureOf([&] { createMailbox(folder_ / "no/where"); }), "can't be created"));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.path()), {}), 1);
}

// Mailboxes of version 1 are in use: another layout needs another version.
TEST_F(BadFilesTest, createLaysItemsOutAsVersionOneDoes) {
  Mailbox made(path_, Locale(), clock_);
  Statement columns = made.store.prepare(
      "SELECT group_concat(name || iif(type = 'TEXT', '$', '') || iif(\"notnull\", '!', ''), ' ') "
      "FROM pragma_table_xinfo('items')");
  ASSERT_TRUE(columns.step());
  EXPECT_EQ(
      columns.text(0),
      "id folder! kind! subject$! body$! importance! sensitivity! status! percentComplete! dateCompleted! "
      "dueDate! totalWork! actualWork! startTime! endTime! location$! allDay! reminderSet! series original "
      "recurrence$! zone seriesStart! seriesEnd! weekdays! monthDays! uid$! created! modified! extras$! complete");
}

}  // namespace
}  // namespace tarnel::mailbox
