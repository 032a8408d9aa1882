#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <random>

#include "MailboxFixture.h"
#include "StoredItem.h"

namespace tarnel::mailbox {
namespace {

class BadFilesTest : public MailboxTest {
 protected:
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
  const std::string sound = read(path_);
  std::string newer = sound, damaged = sound;
  newer[63] = 2;
  for (std::size_t i = 4096; i < damaged.size(); ++i) damaged[i] = static_cast<char>(i * 7);
  sqlite3_close([&] {
    sqlite3* other = nullptr;
    sqlite3_open((folder_ / "other").c_str(), &other);
    sqlite3_exec(other, "CREATE TABLE a(b)", nullptr, nullptr, nullptr);
    return other;
  }());
  const std::vector<std::pair<std::filesystem::path, std::string>> bad = {
      {write("text", "Dear diary, " + std::string(500, 'x')), "no mailbox"},
      {write("empty", ""), "no mailbox"},
      {folder_ / "other", "no mailbox"},
      {write("cut", sound.substr(0, sound.size() - 1)), "cut short"},
      {write("head", sound.substr(0, 100)), "cut short"},
      {write("newer", newer), "it has version 2, and this program knows versions up to 1"},
      {write("damaged", damaged), "damaged"}};
  for (const auto& [path, problem] : bad) {
    const std::string before = read(path);
    const std::string told = opening(path);
    EXPECT_TRUE(contains(told, "440: The mailbox \"" + path.string() + "\" can't be used: ")) << told;
    EXPECT_TRUE(contains(told, problem));
    EXPECT_EQ(read(path), before) << path;
    EXPECT_FALSE(std::filesystem::exists(path.string() + "-wal")) << path;
  }
  EXPECT_TRUE(contains(opening(folder_ / "missing"), "no such file"));
  EXPECT_TRUE(contains(opening(folder_), "it is no file"));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "missing"));
}

TEST_F(BadFilesTest, aProtectedFileOrFolderFailsAlsoInTheMiddle) {
  auto outlook = loggedOn();
  auto task = aTask(*outlook, "a");
  chmod(path_.c_str(), 0444);
  EXPECT_TRUE(contains(failureOf([&] { task->Save(); }), "write-protected"));
  EXPECT_TRUE(contains(opening(path_), "the file is write-protected"));
  chmod(path_.c_str(), 0644);
  chmod(folder_.c_str(), 0555);
  EXPECT_TRUE(contains(opening(path_), "its folder is write-protected"));
  chmod(folder_.c_str(), 0755);
  task->Save();
  EXPECT_EQ(itemsOf(*outlook, tasksFolder)->Count(), 1);
}

TEST_F(BadFilesTest, aFileThatVanishesInTheMiddleFailsEveryOperationOnTheStore) {
  auto outlook = loggedOn();
  auto task = aTask(*outlook, "a");
  task->Save();
  auto items = itemsOf(*outlook, tasksFolder);
  std::filesystem::rename(path_, folder_ / "elsewhere");
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
  const std::string before = read(path_);
  EXPECT_TRUE(contains(failureOf([&] { createMailbox(path_); }), "exists already"));
  EXPECT_EQ(read(path_), before);
  EXPECT_TRUE(contains(failureOf([&] { createMailbox(folder_ / "no" / "where"); }), "can't be created"));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_), {}), 1);
}

// The child says after each save how far it got; it is killed at some moment behind that.
void saveUntilKilled(const std::filesystem::path& path, int told) {
  FixedClock clock;
  auto mailbox = std::make_shared<Mailbox>(path, Locale(), clock);
  for (int i = 1;; ++i) {
    auto item = i % 5 == 0 ? makeItem(mailbox, *findItem(mailbox->store, i / 5))
                           : makeNewItem(mailbox, outlook::ItemType::task);
    const std::string mark = std::to_string(i);
    item->setSubject(mark);
    for (const char* name : {"first", "second", "third"})
      item->UserProperties()->Add(name, outlook::PropertyType::text)->setValue(mark);
    item->Save();
    if (::write(told, "+", 1) != 1) _exit(1);
  }
}

TEST_F(BadFilesTest, aKillAtAnyMomentLeavesNoHalfItemAndLosesNoneThatWasSaved) {
  std::mt19937 random(20261119);
  for (int round = 0; round < 8; ++round) {
    const auto path = folder_ / ("killed" + std::to_string(round));
    createMailbox(path);
    int pipe[2];
    ASSERT_EQ(::pipe(pipe), 0);
    const pid_t child = fork();
    if (child == 0) saveUntilKilled(path, pipe[1]);
    close(pipe[1]);
    const int saves = std::uniform_int_distribution(1, 60)(random);
    char mark = 0;
    for (int i = 0; i < saves; ++i) ASSERT_EQ(::read(pipe[0], &mark, 1), 1);
    random.discard(std::uniform_int_distribution<std::mt19937::result_type>(
        0, 300000)(random));  // somewhere within the next saves
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    int told = saves;
    while (::read(pipe[0], &mark, 1) == 1) ++told;
    close(pipe[0]);

    Mailbox mailbox(path, Locale(), clock_);
    StoreStatement check = mailbox.store.prepare("PRAGMA integrity_check");
    ASSERT_TRUE(check.step());
    EXPECT_EQ(check.text(0), "ok");
    int items = 0;
    for (std::int64_t id = 1; const auto item = findItem(mailbox.store, id); ++id, ++items)
      for (const NamedProperty& property : readProperties(mailbox.store, id))
        EXPECT_EQ(property.value, item->subject) << property.name << " of item " << id;
    EXPECT_GE(items, told - told / 5);
  }
}

}  // namespace
}  // namespace tarnel::mailbox
