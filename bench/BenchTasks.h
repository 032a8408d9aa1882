#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "Recordset.h"
#include "SqliteProvider.h"

namespace tarnel::bench {

// A database of `count` life-like tasks, all current and open.
class BenchTasks {
 public:
  // Made once for each count and kept until the program ends.
  static BenchTasks& of(std::int64_t count);

  const std::filesystem::path& path() const { return path_; }
  std::string connect() const { return "Data Source=" + path_.string() + ";"; }
  sqlite::SqliteProvider& provider() { return provider_; }
  void open(ado::Recordset& rows, const std::string& statement);
  static std::string key(std::int64_t task);

  explicit BenchTasks(std::int64_t count);
  ~BenchTasks();
  BenchTasks(const BenchTasks&) = delete;
  BenchTasks& operator=(const BenchTasks&) = delete;

 private:
  std::filesystem::path path_;
  sqlite::SqliteProvider provider_;
};

}  // namespace tarnel::bench
