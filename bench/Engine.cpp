#include "Engine.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

namespace tarnel::bench {
namespace {

void require(bool good, sqlite3* database) {
  if (good) return;
  std::fprintf(stderr, "The baseline failed: %s\n", sqlite3_errmsg(database));
  std::exit(1);
}

}  // namespace

Engine::Engine(const std::filesystem::path& path) {
  require(sqlite3_open_v2(path.c_str(), &database_, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK, database_);
}

void Engine::run(const std::string& script) {
  require(sqlite3_exec(database_, script.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK, database_);
}

EngineStatement::EngineStatement(Engine& engine, const std::string& sql) {
  require(sqlite3_prepare_v2(engine.handle(), sql.c_str(), -1, &statement_, nullptr) == SQLITE_OK, engine.handle());
}

EngineStatement& EngineStatement::bind(int parameter, std::int64_t value) {
  require(sqlite3_bind_int64(statement_, parameter, value) == SQLITE_OK, sqlite3_db_handle(statement_));
  return *this;
}

EngineStatement& EngineStatement::bind(int parameter, std::string_view value) {
  const int result =
      sqlite3_bind_text(statement_, parameter, value.data(), static_cast<int>(value.size()), SQLITE_TRANSIENT);
  require(result == SQLITE_OK, sqlite3_db_handle(statement_));
  return *this;
}

bool EngineStatement::step() {
  const int result = sqlite3_step(statement_);
  require(result == SQLITE_ROW || result == SQLITE_DONE, sqlite3_db_handle(statement_));
  return result == SQLITE_ROW;
}

void EngineStatement::finish() {
  while (step()) {
  }
  sqlite3_reset(statement_);
}

std::string_view EngineStatement::text(int column) const {
  const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
  return {bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
}

void EngineStatement::readRow() const {
  for (int column = 0; column < sqlite3_column_count(statement_); ++column)
    if (sqlite3_column_type(statement_, column) == SQLITE_INTEGER)
      benchmark::DoNotOptimize(sqlite3_column_int64(statement_, column));
    else
      benchmark::DoNotOptimize(sqlite3_column_text(statement_, column));
}

}  // namespace tarnel::bench
