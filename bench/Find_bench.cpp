#include <benchmark/benchmark.h>

#include "BenchTasks.h"
#include "Comparison.h"
#include "Conversions.h"

namespace tarnel::bench {
namespace {

// The baseline of a cold find: one pass over the rows that compares the key.
void onePassOverTheKeys(benchmark::State& state) {
  ado::Recordset rows;
  BenchTasks::of(state.range(0)).open(rows, "SELECT * FROM TASKS");
  const std::string last = BenchTasks::key(state.range(0) - 1);
  for (auto _ : state)
    for (rows.MoveFirst(); !rows.atEOF(); rows.MoveNext())
      if (equalsIgnoringCase(*rows.Fields("tskGUIDID").Value().get<std::string>(), last)) break;
}

void findFromCold(benchmark::State& state) {
  ado::Recordset rows;
  BenchTasks::of(state.range(0)).open(rows, "SELECT * FROM TASKS");
  const Variant last = BenchTasks::key(state.range(0) - 1);
  for (auto _ : state) {
    state.PauseTiming();
    rows.Requery();
    state.ResumeTiming();
    rows.Find("tskGUIDID", last);
  }
}

// A tenth of the rows is the baseline.
void findFromColdInTenTimesTheRows(benchmark::State& state) {
  const auto cold = [](ado::Recordset& rows, std::int64_t count) {
    rows.Find("tskGUIDID", BenchTasks::key(count - 1));
  };
  ado::Recordset few, many;
  BenchTasks::of(state.range(0) / 10).open(few, "SELECT * FROM TASKS");
  BenchTasks::of(state.range(0)).open(many, "SELECT * FROM TASKS");
  Comparison comparison(state, Comparison::Time::cpu, 12);
  for (auto _ : state) {
    few.Requery();
    comparison.baseline([&] { cold(few, state.range(0) / 10); });
    many.Requery();
    comparison.measured([&] { cold(many, state.range(0)); });
  }
}

void findWarm(benchmark::State& state) {
  ado::Recordset rows;
  BenchTasks::of(state.range(0)).open(rows, "SELECT * FROM TASKS");
  std::int64_t task = 0;
  for (auto _ : state) {
    task = (task + 7919) % state.range(0);
    rows.Find("tskGUIDID", BenchTasks::key(task));
  }
}

BENCHMARK(onePassOverTheKeys)->Arg(10000)->Unit(benchmark::kMicrosecond)->MinTime(0.1);
BENCHMARK(findFromCold)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond)->Iterations(5);
BENCHMARK(findFromColdInTenTimesTheRows)
    ->Arg(10000)
    ->Arg(100000)
    ->Iterations(15)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(findWarm)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond)->MinTime(0.1);

}  // namespace
}  // namespace tarnel::bench
