#pragma once

#include <filesystem>

#include "ConnectedFile.h"
#include "Database.h"
#include "JetStatement.h"
#include "Provider.h"

namespace tarnel::sqlite {

// A session on one database file. Reading leaves the file as it is; the first write turns on its write-ahead log.
// A write fails once the path leads to another file, or to none.
class SqliteSession : public ado::Session {
 public:
  // Opens an existing database and never creates one. Failures as checkDatabaseFile's.
  explicit SqliteSession(const std::filesystem::path& path);

  const std::filesystem::path& path() const { return file_.path(); }
  // Whether the path still leads to the file that was opened.
  bool isInReach() const { return file_.isInReach(); }
  bool rest() { return file_.rest(database_); }
  bool wake() { return file_.wake(database_); }

  ado::Result query(std::string_view statement) override;
  std::int32_t execute(std::string_view statement) override;
  std::vector<ado::Written> write(const ado::Result& shape, const std::vector<ado::Change>& changes) override;
  std::vector<std::optional<ado::Row>> reread(const ado::Result& shape,
                                              const std::vector<ado::Identity>& identities) override;

 private:
  void prepareToWrite();

  ConnectedFile file_;
  Database database_;
  bool logIsOn_ = false;
};

}  // namespace tarnel::sqlite
