#pragma once

#include <map>
#include <string>

#include "Conversions.h"
#include "Recordset.h"
#include "SqliteProvider.h"
#include "TaskDatabaseScript.h"
#include "TempFolder.h"
#include "createDatabase.h"

namespace tarnel::test {

// The rows of a SELECT, values by "|", rows by line ends, Null as "-".
inline std::string describe(ado::Session& session, const std::string& select) {
  std::string text;
  for (const ado::Row& row : session.query(select).rows) {
    const char* separator = "";
    for (const Variant& value : row) {
      text += separator + (value.isNull() ? "-" : toText(value));
      separator = "|";
    }
    text += "\n";
  }
  return text;
}

// Values as in SQL by their columns.
using Columns = std::map<std::string, std::string>;

// The statement that adds an open task, current unless the columns say otherwise.
inline std::string insertTask(const std::string& key, const std::string& desc, Columns columns) {
  columns.insert({{"tskGUIDID", "'" + key + "'"}, {"tskDesc", "'" + desc + "'"}, {"tskCurrent", "1"}});
  std::string names, values;
  for (const auto& [name, value] : columns) {
    names += (names.empty() ? "" : ", ") + name;
    values += (values.empty() ? "" : ", ") + value;
  }
  return "INSERT INTO TASKS (" + names + ") VALUES (" + values + ")";
}

// The program's own task database on disk, without a task.
class TaskDatabase {
 public:
  TaskDatabase() { sqlite::createDatabase(path, host::taskDatabaseScript()); }

  // Jet's SQL, through a session of its own.
  void run(const std::string& statement) { open()->execute(statement); }
  void addTask(const std::string& key, const std::string& desc = "Task", const Columns& columns = {}) {
    run(insertTask(key, desc, columns));
  }
  std::string describe(const std::string& select) { return test::describe(*open(), select); }

  std::shared_ptr<ado::Session> open() { return provider.open(connect()); }
  std::string connect() const { return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path.string() + ";"; }

  TempFolder folder;
  std::filesystem::path path = folder / "TarnelData.mdb";
  sqlite::SqliteProvider provider;
};

// Opens the statement batch-optimistic.
inline void openBatch(ado::Recordset& rows, TaskDatabase& database, const std::string& statement) {
  rows.Open(database.provider, statement, database.connect(), ado::CursorType::fixed, ado::LockType::batchOptimistic);
}

}  // namespace tarnel::test
