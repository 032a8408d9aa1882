#include <benchmark/benchmark.h>

#include "BenchTasks.h"

namespace tarnel::bench {
namespace {

// One pending row, whatever the number of rows that are not.
void updateBatchOfOneRow(benchmark::State& state) {
  ado::Recordset rows;
  BenchTasks::of(state.range(0)).open(rows, "SELECT * FROM TASKS");
  rows.Find("tskGUIDID", BenchTasks::key(state.range(0) / 2));
  std::int32_t minutes = 0;
  for (auto _ : state) {
    rows.Fields("tskTimeSpent").setValue(++minutes);
    rows.UpdateBatch();
  }
}

void updateBatchOfAllRows(benchmark::State& state) {
  ado::Recordset rows;
  BenchTasks::of(state.range(0)).open(rows, "SELECT * FROM TASKS");
  std::int32_t minutes = 0;
  for (auto _ : state) {
    ++minutes;
    for (rows.MoveFirst(); !rows.atEOF(); rows.MoveNext()) rows.Fields("tskTimeSpent").setValue(minutes);
    rows.UpdateBatch();
  }
}

BENCHMARK(updateBatchOfOneRow)->Arg(10)->Arg(1000)->Arg(100000)->Unit(benchmark::kMicrosecond)->Iterations(100);
BENCHMARK(updateBatchOfAllRows)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(2);

}  // namespace
}  // namespace tarnel::bench
