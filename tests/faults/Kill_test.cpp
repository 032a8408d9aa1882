#include <poll.h>

#include <cstdlib>
#include <iostream>
#include <random>

#include "Story.h"

namespace tarnel::test {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::nanoseconds;

constexpr std::size_t taskCount = 500;

// TARNEL_LONG_TESTS kills ten times as often; TARNEL_SEED repeats a run.
int killCount() { return std::getenv("TARNEL_LONG_TESTS") ? 200 : 20; }
unsigned seed() {
  const char* given = std::getenv("TARNEL_SEED");
  return given ? static_cast<unsigned>(std::stoul(given)) : std::random_device()();
}

// A user whose machine dies under the wizard, again and again: each run goes on where the last one was killed.
struct Kill : Story {
  struct Phase {
    std::string commands;
    nanoseconds length{0};  // of a whole run
  };

  void fill() {
    for (const char* file : {"tarnel", "tasks.db", "tasks.db-wal", "tasks.db-shm"})
      std::filesystem::remove_all(run.home / file);
    EXPECT_EQ(run("new tasks.db").exitCode, 0);
    addItem("Another");  // a linked task can't be looked up in a folder without any item
    addTasks(static_cast<int>(taskCount));
  }

  // False when the run came to its end before its time was up.
  bool killedAfter(nanoseconds time, const std::string& commands) {
    run.home.write("input", commands);
    ChildProcess program("exec 2>/dev/null; " + run.shellCommand(drivingArguments) + " <input");
    const timespec wait{static_cast<time_t>(time.count() / 1'000'000'000),
                        static_cast<long>(time.count() % 1'000'000'000)};
    ppoll(nullptr, 0, &wait, nullptr);
    return program.kill();
  }

  void measure(Phase& phase) {
    const auto begin = Clock::now();
    EXPECT_EQ(drive(phase.commands).exitCode, 0);
    phase.length = Clock::now() - begin;
  }

  Phase copy_{onAll("0", "UPDATE")};
  Phase remove_{"answer yes\n" + onAll("0", "DELETE")};
};

TEST_F(Kill, atAnyMomentLosesAndDoublesNothingAndTheNextRunHeals) {
  fill();
  measure(copy_);
  measure(remove_);
  const unsigned start = seed();
  std::mt19937 random(start);
  std::cout << "TARNEL_SEED=" << start << "\n";
  int kills = 0, whole = 0;
  for (int round = 0; kills < killCount(); ++round) {
    const std::string place = "TARNEL_SEED=" + std::to_string(start) + " round " + std::to_string(round);
    fill();
    for (const Phase* phase : {&copy_, &remove_}) {
      // A few kills in each phase, then a whole run.
      for (int i = 0; i < 5 && kills < killCount(); ++i) {
        const nanoseconds moment(std::uniform_int_distribution<long>(0, phase->length.count())(random));
        killedAfter(moment, phase->commands) ? ++kills : ++whole;
        const Stock stock = soundStock(place);
        EXPECT_TRUE(phase == &remove_ || stock.tasks == taskCount) << place << ": a task was lost";
        if (HasFailure()) return;
      }
      ASSERT_EQ(drive(phase->commands).exitCode, 0) << place;
      const Stock stock = soundStock(place);
      ASSERT_EQ(stock.tasks, phase == &copy_ ? taskCount : 0) << place;
      ASSERT_EQ(stock.linked, stock.tasks) << place;
    }
  }
  std::cout << kills << " kills, " << whole << " runs that were faster\n";
}

}  // namespace
}  // namespace tarnel::test
