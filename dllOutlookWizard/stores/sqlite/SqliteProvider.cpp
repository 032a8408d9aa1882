#include "SqliteProvider.h"

#include <filesystem>

#include "ConnectionString.h"
#include "Failure.h"
#include "SqliteSession.h"

namespace tarnel::sqlite {

SqliteProvider::SqliteProvider() = default;
SqliteProvider::~SqliteProvider() = default;

std::shared_ptr<ado::Session> SqliteProvider::open(std::string_view connectionString) {
  const auto parts = ado::parseConnectionString(connectionString);
  const auto source = parts.find("DATA SOURCE");
  if (source == parts.end() || source->second.empty())
    throw Failure(failure::engine, "The connection string names no database file. Add \"Data Source=path;\" to it: " +
                                       std::string(connectionString));

  std::error_code error;
  const std::filesystem::path path = std::filesystem::weakly_canonical(source->second, error);
  if (error) throw Failure(failure::engine, "The database \"" + source->second + "\": " + error.message() + ".");
  return sessions_.to(path, [&path] { return std::make_unique<SqliteSession>(path); });
}

void SqliteProvider::rest() noexcept {
  sessions_.each([](SqliteSession& session) { session.letGo(); });
}

}  // namespace tarnel::sqlite
