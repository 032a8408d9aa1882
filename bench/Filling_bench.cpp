#include <benchmark/benchmark.h>

#include <cstdlib>

#include "BenchTasks.h"
#include "Comparison.h"
#include "Engine.h"
#include "TaskQuery.h"
#include "WizardSides.h"

namespace tarnel::bench {
namespace {

constexpr const char* byPoints = "D00";
constexpr const char* currentTasks = "T00";

const std::string& listStatement() {
  static const std::string statement = taskQuery(byPoints, currentTasks, false);
  return statement;
}

// The baseline: the engine alone steps the same rows and reads every column by its type.
void readByEngine(Engine& engine) {
  EngineStatement rows(engine, listStatement());
  while (rows.step()) rows.readRow();
}

// The same through the cursor, each column asked for by its name.
void readByRecordset(BenchTasks& tasks) {
  ado::Recordset rows;
  tasks.open(rows, listStatement());
  std::vector<std::string> names;
  for (std::size_t i = 0; i < rows.fieldCount(); ++i) names.push_back(rows.Fields(i).Name());
  for (; !rows.atEOF(); rows.MoveNext())
    for (const std::string& name : names) benchmark::DoNotOptimize(rows.Fields(name).Value());
}

void fill(TaskLists& lists) {
  if (!lists.GetTarnelTasks(byPoints, currentTasks, lists.tarnelList)) std::abort();
}

void recordsetReadsTheList(benchmark::State& state) {
  BenchTasks& tasks = BenchTasks::of(state.range(0));
  Engine engine(tasks.path());
  Comparison comparison(state, Comparison::Time::cpu, 5);
  for (auto _ : state) {
    comparison.baseline([&] { readByEngine(engine); });
    comparison.measured([&] { readByRecordset(tasks); });
  }
}

void tarnelListFills(benchmark::State& state) {
  BenchTasks& tasks = BenchTasks::of(state.range(0));
  Engine engine(tasks.path());
  WizardSides wizard(tasks);
  Comparison comparison(state, Comparison::Time::cpu, 5);
  for (auto _ : state) {
    comparison.baseline([&] { readByEngine(engine); });
    comparison.measured([&] { fill(wizard.lists); });
  }
}

// A tenth of the rows is the baseline.
void tarnelListFillsTenTimesTheRows(benchmark::State& state) {
  Comparison comparison(state, Comparison::Time::cpu, 12);
  for (auto _ : state) {
    {
      WizardSides few(BenchTasks::of(state.range(0) / 10));
      comparison.baseline([&] { fill(few.lists); });
    }
    WizardSides many(BenchTasks::of(state.range(0)));
    comparison.measured([&] { fill(many.lists); });
  }
}

BENCHMARK(recordsetReadsTheList)->Arg(10000)->Iterations(15)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(tarnelListFills)->Arg(10000)->Iterations(15)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(tarnelListFillsTenTimesTheRows)
    ->Arg(10000)
    ->Arg(100000)
    ->Iterations(7)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnel::bench
