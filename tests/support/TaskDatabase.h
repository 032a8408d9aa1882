#pragma once

#include <string>

#include "Recordset.h"
#include "SqliteProvider.h"
#include "TempFolder.h"

namespace tarnel::test {

// A small task database on disk: the tables and columns that the wizard uses, the rows that the test adds.
class TaskDatabase {
 public:
  // The script is the engine's own SQL.
  explicit TaskDatabase(const std::string& script = schema);

  // Jet's SQL, through a session of its own.
  void run(const std::string& statement) { open()->execute(statement); }
  // "GUID" with all numbers 0, in progress, current.
  void addTask(const std::string& key, const std::string& desc = "Task");
  // The rows of a SELECT, values by "|", rows by line ends, Null as "-".
  std::string describe(const std::string& select);

  std::shared_ptr<ado::Session> open() { return provider.open(connect()); }
  std::string connect() const { return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path.string() + ";"; }

  TempFolder folder;
  std::filesystem::path path = folder / "TarnelData.mdb";
  sqlite::SqliteProvider provider;

 private:
  static const char* const schema;
};

// Opens the statement batch-optimistic.
void openBatch(ado::Recordset& rows, TaskDatabase& database, const std::string& statement);

}  // namespace tarnel::test
