#include <sqlite3.h>

#include "Input.h"
#include "JetStatement.h"
#include "TaskDatabaseScript.h"

using namespace tarnel;

namespace {

sqlite3* database() {
  static sqlite3* const opened = [] {
    sqlite3* made = nullptr;
    sqlite3_open(":memory:", &made);
    sqlite3_exec(made, host::taskDatabaseScript().c_str(), nullptr, nullptr, nullptr);
    return made;
  }();
  return opened;
}

// Whatever the text was, the engine gets one statement of the kind that it was taken for.
void prepare(const std::string& sql, bool isSelect) {
  sqlite3_stmt* statement = nullptr;
  const char* tail = nullptr;
  if (sqlite3_prepare_v2(database(), sql.c_str(), static_cast<int>(sql.size()) + 1, &statement, &tail) == SQLITE_OK) {
    fuzz::require(std::string(tail).find_first_not_of(" \t\r\n;") == std::string::npos, "one statement and no second");
    fuzz::require(!statement || !isSelect || sqlite3_stmt_readonly(statement), "a SELECT writes nothing");
  }
  sqlite3_finalize(statement);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  fuzz::answered([&] {
    const sqlite::JetStatement statement(text);
    fuzz::require(!(statement.isSelect() && statement.isCommand()), "a statement is of one kind");
    if (statement.isSelect() || statement.isCommand()) prepare(statement.sql(), statement.isSelect());
    if (const auto extended = statement.sqlWithRowId()) prepare(*extended, true);
  });
  return 0;
}
