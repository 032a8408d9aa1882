#include "SqliteSession.h"

#include <sqlite3.h>

#include <algorithm>
#include <utility>

#include "ColumnTypes.h"
#include "Conversions.h"
#include "DatabaseFile.h"
#include "Failure.h"
#include "Statement.h"
#include "TableRows.h"
#include "Transaction.h"

namespace tarnel::sqlite {
namespace {

const std::filesystem::path& checked(const std::filesystem::path& path) {
  checkDatabaseFile(path);
  return path;
}

std::string textOf(const char* text) { return text ? text : ""; }

ado::Column describeColumn(sqlite3_stmt* statement, int column) {
  return {textOf(sqlite3_column_name(statement, column)), textOf(sqlite3_column_table_name(statement, column)),
          textOf(sqlite3_column_origin_name(statement, column)),
          typeDeclaredAs(textOf(sqlite3_column_decltype(statement, column)))};
}

bool isKeyColumn(sqlite3* database, const ado::Column& column) {
  int isKey = 0;
  sqlite3_table_column_metadata(database, "main", column.table.c_str(), column.origin.c_str(), nullptr, nullptr,
                                nullptr, &isKey, nullptr);
  return isKey != 0;
}

// Whether each column is one of the same table, and no value worked out.
bool comesFromOneTable(const std::vector<ado::Column>& columns) {
  return !columns.empty() && std::all_of(columns.begin(), columns.end(), [&](const ado::Column& column) {
    return !column.origin.empty() && equalsIgnoringCase(column.table, columns.front().table);
  });
}

ado::Result describeResult(sqlite3* database, const Statement& statement, int columnCount) {
  ado::Result result;
  for (int i = 0; i < columnCount; ++i) result.columns.push_back(describeColumn(statement.handle(), i));
  if (!comesFromOneTable(result.columns)) return result;
  result.table = result.columns.front().table;
  for (std::size_t i = 0; i < result.columns.size(); ++i)
    if (isKeyColumn(database, result.columns[i])) result.keyColumns.push_back(i);
  return result;
}

void readRows(Statement& statement, ado::Result& result, bool withRowId) {
  const std::size_t width = result.columns.size();
  result.rows = ado::PackedRows(width);
  while (statement.step()) {
    for (std::size_t i = 0; i < width; ++i) appendValue(result.rows, statement, i, result.columns[i].type);
    if (withRowId) result.rowIds.push_back(statement.number(static_cast<int>(width)));
  }
}

// Both readings of a SELECT are prepared, because only the engine knows whether its columns come from one table.
ado::Result readSelect(Database& database, const JetStatement& select) {
  Statement plain(database, select.sql(), Statement::Use::once);
  ado::Result result = describeResult(database.handle(), plain, sqlite3_column_count(plain.handle()));
  const auto withRowId = result.table.empty() ? std::nullopt : select.sqlWithRowId();
  if (withRowId) {
    Statement extended(database, *withRowId, Statement::Use::once);
    readRows(extended, result, true);
  } else {
    result.table.clear();
    readRows(plain, result, false);
  }
  return result;
}

}  // namespace

SqliteSession::Opened::Opened(const std::filesystem::path& path) : file(path), database(checked(path)) {
  // The first look at the contents, where a damaged file shows.
  database.run("SELECT count(*) FROM sqlite_schema");
}

SqliteSession::SqliteSession(const std::filesystem::path& path)
    : path_(path), opened_(std::make_unique<Opened>(path)) {}

bool SqliteSession::rest() {
  if (!opened_) return false;
  rests_ = rests_ || opened_->file.rest(opened_->database);
  return rests_;
}

bool SqliteSession::wake() {
  if (!opened_) return false;
  return !std::exchange(rests_, false) || opened_->file.wake(opened_->database);
}

void SqliteSession::letGo() noexcept {
  if (!opened_ || rest()) return;
  // The log has been brought into the file meanwhile, so that it can't be told whether others wrote there, too.
  opened_->file.emptyLog(opened_->database);
  opened_.reset();
}

SqliteSession::Opened& SqliteSession::opened() {
  if (!wake()) {
    opened_.reset();  // before the file is opened again
    opened_ = std::make_unique<Opened>(path_);
  }
  return *opened_;
}

ado::Result SqliteSession::query(std::string_view statement) {
  const JetStatement select(statement);
  if (!select.isSelect())
    throw Failure(failure::badStatement, "A recordset opens on a SELECT statement only: " + std::string(statement));
  return readSelect(database(), select);
}

std::int32_t SqliteSession::execute(std::string_view statement) {
  const JetStatement command(statement);
  if (!command.isCommand())
    throw Failure(failure::badStatement,
                  "A command runs INSERT, UPDATE, DELETE and the like only: " + std::string(statement));
  Statement prepared(database(), command.sql(), Statement::Use::once);
  Database& database = databaseToWrite();
  const int before = sqlite3_total_changes(database.handle());
  prepared.step();
  // Statements that touch no rows leave the last count as it was.
  return sqlite3_total_changes(database.handle()) == before ? 0 : static_cast<std::int32_t>(database.changedRows());
}

std::vector<ado::Written> SqliteSession::write(const ado::Result& shape, const std::vector<ado::Change>& changes) {
  Database& database = databaseToWrite();
  Transaction transaction(database);
  std::vector<ado::Written> written;
  {
    TableRows rows(database, shape);
    for (const ado::Change& change : changes) written.push_back(rows.write(change));
  }
  transaction.commit();
  return written;
}

std::vector<std::optional<ado::Row>> SqliteSession::reread(const ado::Result& shape,
                                                           const std::vector<ado::Identity>& identities) {
  TableRows rows(database(), shape);
  std::vector<std::optional<ado::Row>> found;
  found.reserve(identities.size());
  for (const ado::Identity& identity : identities) found.push_back(rows.read(identity));
  return found;
}

Database& SqliteSession::databaseToWrite() {
  Opened& used = opened();
  // The engine would write on into a file that no path leads to any more.
  if (!used.file.isInReach())
    throw Failure(failure::engine, "The database \"" + path().string() +
                                       "\" was removed or replaced while it was open, and nothing was written. Put it "
                                       "back, or close the wizard and open it again.");
  if (!used.logIsOn) used.database.useWriteAheadLog();
  used.logIsOn = true;
  return used.database;
}

}  // namespace tarnel::sqlite
