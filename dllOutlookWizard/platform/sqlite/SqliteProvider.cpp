#include "SqliteProvider.h"

#include <filesystem>

#include "ConnectionString.h"
#include "Failure.h"
#include "SqliteSession.h"

namespace tarnel::sqlite {

std::shared_ptr<ado::Session> SqliteProvider::open(std::string_view connectionString) {
  const auto parts = ado::parseConnectionString(connectionString);
  const auto source = parts.find("DATA SOURCE");
  if (source == parts.end() || source->second.empty())
    throw Failure(failure::engine, "The connection string names no database file. Add \"Data Source=path;\" to it: " +
                                       std::string(connectionString));

  std::error_code error;
  const std::filesystem::path path = std::filesystem::weakly_canonical(source->second, error);
  if (error) throw Failure(failure::engine, "The database \"" + source->second + "\": " + error.message() + ".");
  std::weak_ptr<SqliteSession>& known = sessions_[path.string()];
  if (auto session = known.lock(); session && session->isInReach()) return session;
  auto session = std::make_shared<SqliteSession>(path);
  known = session;
  return session;
}

}  // namespace tarnel::sqlite
