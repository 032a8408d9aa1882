#include "StatementCache.h"

#include <sqlite3.h>

namespace tarnel::sqlite {

StatementCache::Lease StatementCache::take(sqlite3* database, std::string_view sql) {
  if (const auto idle = idle_.find(sql); idle != idle_.end()) return Lease(idle_.extract(idle));
  sqlite3_stmt* made = nullptr;
  const int result =
      sqlite3_prepare_v3(database, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT, &made, nullptr);
  if (result != SQLITE_OK) return Lease({});
  ByText one;
  one.emplace(sql, Handle(made, sqlite3_finalize));
  return Lease(one.extract(one.begin()));
}

void StatementCache::giveBack(Lease lease) {
  // A reset gives the run's own failure once more; it has been told already.
  sqlite3_reset(lease.handle());
  sqlite3_clear_bindings(lease.handle());
  idle_.insert(std::move(lease.node_));
}

}  // namespace tarnel::sqlite
