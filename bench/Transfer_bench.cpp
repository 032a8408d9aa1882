#include <benchmark/benchmark.h>
#include <malloc.h>

#include "BenchTasks.h"
#include "Comparison.h"
#include "Engine.h"
#include "MailboxFile.h"
#include "RawTransfer.h"
#include "TempFolder.h"
#include "WizardSides.h"

namespace tarnel::bench {
namespace {

// A task database and a mailbox of a baseline's own.
struct RawSides {
  explicit RawSides(std::int64_t count) : tasks(count) { mailbox::createMailbox(mailbox); }

  BenchTasks tasks;
  test::TempFolder folder;
  std::filesystem::path mailbox = folder / "mailbox";
};

// Another subject and another time for each task, so that each item has something to update.
void changeAll(BenchTasks& tasks) {
  Engine(tasks.path()).run("UPDATE TASKS SET tskDesc = tskDesc || '.', tskTimeNeeded = tskTimeNeeded + 1");
}

// What `run` is called with are the wizard's filled lists on new, unlinked tasks.
template <class Run>
void withUnlinkedTasks(std::int64_t count, Run run) {
  BenchTasks tasks(count);
  WizardSides wizard(tasks);
  wizard.lists.refillTarnelList();
  run(wizard);
}

void firstCopy(benchmark::State& state) {
  Comparison comparison(state, Comparison::Time::wall, 1.5);
  for (auto _ : state) {
    RawSides raw(state.range(0));
    RawTransfer baseline(raw.tasks.path(), raw.mailbox);
    comparison.baseline([&] { baseline.copyAll(); });

    withUnlinkedTasks(state.range(0), [&](WizardSides& wizard) { comparison.measured([&] { wizard.copyAll(); }); });
  }
}

void updateOfLinkedTasks(benchmark::State& state) {
  RawSides raw(state.range(0));
  RawTransfer baseline(raw.tasks.path(), raw.mailbox);
  baseline.copyAll();
  BenchTasks tasks(state.range(0));
  WizardSides wizard(tasks);
  wizard.lists.refillTarnelList();
  wizard.copyAll();

  Comparison comparison(state, Comparison::Time::wall, 2);
  for (auto _ : state) {
    changeAll(raw.tasks);
    comparison.baseline([&] { baseline.updateAll(); });
    changeAll(tasks);
    wizard.lists.refillTarnelList();
    comparison.measured([&] { wizard.copyAll(); });
  }
}

// A tenth of the tasks is the baseline.
void firstCopyOfTenTimesTheTasks(benchmark::State& state) {
  Comparison comparison(state, Comparison::Time::wall, 11);
  for (auto _ : state) {
    withUnlinkedTasks(state.range(0) / 10, [&](WizardSides& few) { comparison.baseline([&] { few.copyAll(); }); });
    withUnlinkedTasks(state.range(0), [&](WizardSides& many) { comparison.measured([&] { many.copyAll(); }); });
  }
}

// The heap that is held after a run and was not before it: rows of the Outlook list after a first copy, nothing
// after an update.
void heapKeptByEachTask(benchmark::State& state) {
  const auto bytes = [] { return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd); };
  for (auto _ : state) {
    BenchTasks tasks(state.range(0));
    WizardSides wizard(tasks);
    wizard.lists.refillTarnelList();
    const auto growth = [&] {
      const double before = bytes();
      wizard.copyAll();
      return (bytes() - before) / static_cast<double>(state.range(0));
    };
    state.counters["first_copy_bytes"] = growth();
    wizard.lists.refillTarnelList();
    wizard.copyAll();  // now the rows know their links, and TASKS is open
    state.counters["update_bytes"] = growth();
  }
}

BENCHMARK(heapKeptByEachTask)->Arg(2000)->Arg(20000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(firstCopy)->Arg(2000)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(updateOfLinkedTasks)->Arg(2000)->Iterations(11)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(firstCopyOfTenTimesTheTasks)->Arg(20000)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnel::bench
