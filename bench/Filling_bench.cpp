#include <benchmark/benchmark.h>

#include <cstdlib>
#include <memory>

#include "BenchTasks.h"
#include "Comparison.h"
#include "Engine.h"
#include "FreshProcess.h"
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

// Seconds of the first fill in a process of its own, or of the second one, which finds the first one's memory.
enum class Fill { first, second };
double fillAlone(std::int64_t count, Fill which) {
  BenchTasks& tasks = BenchTasks::of(count);
  return cpuSecondsInFreshProcess([&] {
    auto wizard = std::make_shared<WizardSides>(tasks);
    if (which == Fill::second) fill(wizard->lists);
    return [wizard] { fill(wizard->lists); };
  });
}

double firstReadByEngine(std::int64_t count) {
  BenchTasks& tasks = BenchTasks::of(count);
  return cpuSecondsInFreshProcess([&] {
    auto engine = std::make_shared<Engine>(tasks.path());
    return [engine] { readByEngine(*engine); };
  });
}

void tarnelListFillsFirst(benchmark::State& state) {
  Comparison comparison(state, Comparison::Time::cpu, 5);
  for (auto _ : state) {
    comparison.addBaseline(firstReadByEngine(state.range(0)));
    comparison.addMeasured(fillAlone(state.range(0), Fill::first));
  }
}

// A tenth of the rows is the baseline.
template <Fill which>
void tarnelListFillsTenTimesTheRows(benchmark::State& state) {
  Comparison comparison(state, Comparison::Time::cpu, 12);
  for (auto _ : state) {
    comparison.addBaseline(fillAlone(state.range(0) / 10, which));
    comparison.addMeasured(fillAlone(state.range(0), which));
  }
}

BENCHMARK(recordsetReadsTheList)->Arg(10000)->Iterations(15)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(tarnelListFills)->Arg(10000)->Iterations(15)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(tarnelListFillsFirst)->Arg(10000)->Iterations(15)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(tarnelListFillsTenTimesTheRows, Fill::first)
    ->Arg(10000)
    ->Arg(100000)
    ->Iterations(7)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(tarnelListFillsTenTimesTheRows, Fill::second)
    ->Arg(10000)
    ->Arg(100000)
    ->Iterations(7)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnel::bench
