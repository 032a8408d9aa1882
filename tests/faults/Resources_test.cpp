#include <sqlite3.h>

#include "Story.h"

namespace tarnel::test {
namespace {

namespace fs = std::filesystem;

// What the built program tells when the machine gives it too little, and that both stores are sound after it.
struct Resources : Story {
  // The copy under a shell's limit. It ends by itself, with its last line, and well only where no failure was reported.
  ProgramResult copyUnder(const std::string& limit) {
    run.home.write("input", onAll("0", "UPDATE"));
    const std::string shell = "cd '" + run.home.path().string() + "' && exec <input >output 2>errors && " + limit +
                              " && " + run.shellCommand(drivingArguments);
    const int status = std::system(shell.c_str());
    const ProgramResult result{WIFEXITED(status) ? WEXITSTATUS(status) : -1, contents("output"), contents("errors")};
    EXPECT_TRUE(result.exitCode == 0 || result.exitCode == 1) << limit << ": " << result.exitCode << result.errors;
    // Where not even the component can be loaded the standard error stream tells it.
    const bool isReported =
        result.output.find("\"report\"") != std::string::npos || result.errors.find("tarnel: ") == 0;
    EXPECT_EQ(result.exitCode == 1, isReported) << limit << ": " << result.output << result.errors;
    return result;
  }
  std::string contents(const char* name) const { return contentsOf(run.home / name); }

  void expectSound(const std::string& place, std::size_t tasks) {
    const Stock stock = soundStock(place);
    EXPECT_EQ(stock.tasks, tasks) << place;
    linked_ = stock.linked;
    // Nothing here throws an item away, so that a second copy is seen wherever it lies.
    for (const json& item : items()) EXPECT_EQ(item["folder"], "Tasks") << place;
  }

  // The next run brings every task to Outlook once.
  void expectHeals(const std::string& place, std::size_t tasks) {
    EXPECT_EQ(drive(onAll("0", "UPDATE")).exitCode, 0) << place;
    expectSound(place, tasks);
    EXPECT_EQ(linked_, tasks) << place;
  }

  std::size_t linked_ = 0;
};

// Another program in the middle of its own writing.
class Lock {
 public:
  explicit Lock(const fs::path& file) {
    sqlite3_open(file.c_str(), &database_);
    EXPECT_EQ(sqlite3_exec(database_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
  }
  ~Lock() { sqlite3_close(database_); }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

 private:
  sqlite3* database_ = nullptr;
};

TEST_F(Resources, filesThatMayNotGrowAreToldAndTheNextRunHeals) {
  addTasks(200);
  int told = 0;
  for (const int blocks : {1, 60, 200, 240, 300, 400}) {
    const std::string limit = "ulimit -f " + std::to_string(blocks);
    const ProgramResult result = copyUnder(limit);
    if (result.exitCode == 1) ++told;
    expectSound(limit, 200);
  }
  EXPECT_GE(told, 3);
  expectHeals("files may grow again", 200);
}

TEST_F(Resources, fullDiskUnderTheMailboxIsToldAndTheNextRunHeals) {
  addTasks(500);
  addItem("Another");  // a linked task can't be looked up in a folder without any item
  run.home.write("input", onAll("0", "UPDATE"));
  // A disk of that size in the place of the mailbox's folder, for this shell alone.
  const auto copyOnDisk = [&](const std::string& size) {
    run.home.write("script", "cp -r tarnel kept && mount -t tmpfs -o size=" + size +
                                 " none tarnel && cp -r kept/* tarnel && (" + run.shellCommand(drivingArguments) +
                                 " <input >output 2>errors); cp -r tarnel/* kept\n");
    const std::string shell = "cd '" + run.home.path().string() + "' && rm -rf kept && unshare -rm sh script 2>refused";
    return std::system(shell.c_str()) == 0 && fs::exists(run.home / "kept");
  };
  if (!copyOnDisk("20m") || contents("output").find("created: 500") == std::string::npos)
    GTEST_SKIP() << "No disk of a given size can be made here: " << contents("refused");
  change("UPDATE TASKS SET tskOUTEntityID = Null");
  ASSERT_TRUE(copyOnDisk("400k"));
  EXPECT_NE(contents("output").find("the disk refuses"), std::string::npos) << contents("output");
  fs::remove_all(run.home / "tarnel");
  fs::rename(run.home / "kept", run.home / "tarnel");
  expectSound("full disk", 500);
  EXPECT_LT(linked_, 500U);
  expectHeals("the disk has room again", 500);
}

TEST_F(Resources, fileHandlesUsedUpAreTold) {
#ifdef TARNEL_SANITIZE
  GTEST_SKIP() << "The sanitizers look at memory through pipes and take fright when they get none.";
#endif
  addTasks(20);
  int told = 0;
  for (int handles = 5; handles <= 16; ++handles) {
    const std::string limit = "ulimit -n " + std::to_string(handles);
    const ProgramResult result = copyUnder(limit);
    const bool copied = result.output.find("Outlook Tasks created") != std::string::npos;
    // An Outlook that can't be reached is told in a box, and is no failure of the wizard's.
    const bool isTold = result.exitCode == 1 || result.output.find("critical") != std::string::npos;
    EXPECT_NE(copied, isTold) << limit << ": " << result.output;
    if (isTold) ++told;
    EXPECT_EQ(contents("output").find("is not a task database"), std::string::npos) << limit;
    expectSound(limit, 20);
  }
  EXPECT_GE(told, 3);
  expectHeals("handles are free again", 20);
}

TEST_F(Resources, storesThatOthersHoldOrThatAreReadOnlyAreToldAndLeftAsTheyAre) {
  addTasks(2);
  addItem("Another");
  drive("");
  const std::string before = wholeDatabase() + mailbox();
  const auto expectTold = [&](const std::string& words) {
    EXPECT_NE(told(onAll("0", "UPDATE")).find("returned"), 0U) << words;
    EXPECT_NE(contents("output").find(words), std::string::npos) << contents("output");
  };
  {
    const Lock lock(run.home / "tasks.db");
    EXPECT_EQ(wholeDatabase() + mailbox(), before) << "readers need not wait, and take no lock away";
    expectTold("Another program is writing to it; try again");
  }
  EXPECT_EQ(wholeDatabase() + mailbox(), before);
  for (const auto& [file, words] : {std::pair{std::string("tasks.db"), "is read-only. Allow this user to write"},
                                    std::pair{mailboxFile, "Unable to access Outlook"}}) {
    fs::permissions(run.home / file, fs::perms::owner_read);
    expectTold(words);
    fs::permissions(run.home / file, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(wholeDatabase() + mailbox(), before) << file;
  }
  {
    // Reading goes on while another one writes; the first item that can't be saved stops the run.
    const Lock lock(run.home / mailboxFile);
    EXPECT_NE(told(onAll("0", "UPDATE")).find("reports: Tarnel2OUTTasks"), std::string::npos);
    EXPECT_EQ(mailbox(), "Tasks|Another|0|-\n");
  }
  expectHeals("all are free again", 2);
}

TEST_F(Resources, hundredThousandTasksBesideTwentyThousandItemsAreWorkedOn) {
  addTasks(100000, false);
  std::string many;
  for (int i = 0; i < 20000; ++i) {
    const std::string number = std::to_string(i);
    many += "BEGIN:VTODO\r\nUID:" + number + "\r\nSUMMARY:Own " + number + "\r\nEND:VTODO\r\n";
  }
  import(many);
  const auto result = drive(pickAll + "check smtTaskList(0) K777 on\nclick smtTaskActions(0) UPDATE\n" +
                            "list smtTaskList(1)\n" + onAll("1", "UPDATE"));
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_EQ(told(result),
            "says: Outlook Tasks created: 1. Tasks in Outlook updated: 0.\n"
            "says: Tasks created: 2000. Tasks in Tarnel updated: 1.\nreturned\n");
  EXPECT_EQ(result.reply("list")["items"].size(), 2001U);
  EXPECT_EQ(rows("SELECT COUNT(*) FROM TASKS"), "102000\n");
}

}  // namespace
}  // namespace tarnel::test
