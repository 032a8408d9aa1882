#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "BenchTasks.h"

namespace tarnel::bench {
namespace {

// The baseline: the engine alone steps the same rows and reads every column by its type.
void engineReadsTheList(benchmark::State& state) {
  BenchTasks& tasks = BenchTasks::of(state.range(0));
  sqlite3* database = nullptr;
  sqlite3_open(tasks.path().c_str(), &database);
  for (auto _ : state) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database, listStatement.c_str(), -1, &statement, nullptr);
    while (sqlite3_step(statement) == SQLITE_ROW)
      for (int column = 0; column < sqlite3_column_count(statement); ++column)
        if (sqlite3_column_type(statement, column) == SQLITE_INTEGER)
          benchmark::DoNotOptimize(sqlite3_column_int64(statement, column));
        else
          benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
    sqlite3_finalize(statement);
  }
  sqlite3_close(database);
}

// The same through the cursor, each column asked for by its name.
void recordsetReadsTheList(benchmark::State& state) {
  BenchTasks& tasks = BenchTasks::of(state.range(0));
  for (auto _ : state) {
    ado::Recordset rows;
    tasks.open(rows, listStatement);
    std::vector<std::string> names;
    for (std::size_t i = 0; i < rows.fieldCount(); ++i) names.push_back(rows.Fields(i).Name());
    for (; !rows.atEOF(); rows.MoveNext())
      for (const std::string& name : names) benchmark::DoNotOptimize(rows.Fields(name).Value());
  }
}

BENCHMARK(engineReadsTheList)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->MinTime(0.2);
BENCHMARK(recordsetReadsTheList)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->MinTime(0.2);

}  // namespace
}  // namespace tarnel::bench
