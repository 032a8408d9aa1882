#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace tarnel::bench {

// The database engine used bare, as the baselines use it. Whatever fails ends the program.
class Engine {
 public:
  explicit Engine(const std::filesystem::path& path);
  ~Engine() { sqlite3_close(database_); }
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  void run(const std::string& script);
  sqlite3* handle() const { return database_; }

 private:
  sqlite3* database_ = nullptr;
};

// A statement that is prepared once and run many times.
class EngineStatement {
 public:
  EngineStatement(Engine& engine, const std::string& sql);
  ~EngineStatement() { sqlite3_finalize(statement_); }
  EngineStatement(const EngineStatement&) = delete;
  EngineStatement& operator=(const EngineStatement&) = delete;

  // Parameters count from 1.
  EngineStatement& bind(int parameter, std::int64_t value);
  EngineStatement& bind(int parameter, std::string_view value);
  // To the next row; false after the last one.
  bool step();
  // To the end, and ready to run again.
  void finish();

  std::int64_t number(int column) const { return sqlite3_column_int64(statement_, column); }
  std::string_view text(int column) const;
  // Reads every column of the row by its type.
  void readRow() const;

 private:
  sqlite3_stmt* statement_ = nullptr;
};

}  // namespace tarnel::bench
