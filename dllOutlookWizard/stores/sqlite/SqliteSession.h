#pragma once

#include <filesystem>
#include <memory>

#include "ConnectedFile.h"
#include "Database.h"
#include "JetStatement.h"
#include "Provider.h"

namespace tarnel::sqlite {

// A session on one database file. Reading leaves the file as it is; the first write turns on its write-ahead log.
// A write fails once the path leads to another file, or to none, since the session was opened or last rested.
class SqliteSession : public ado::Session {
 public:
  // Opens an existing database and never creates one. Failures as checkDatabaseFile's.
  explicit SqliteSession(const std::filesystem::path& path);

  const std::filesystem::path& path() const { return path_; }
  // Whether the next use works on the file that the path leads to now.
  bool isInReach() const { return !opened_ || rests_ || opened_->file.isInReach(); }
  bool rest();
  bool wake();
  // The end of a command, in a session that stays: the file holds all that was written. The next use works on the file
  // that the path then leads to, and fails where there is none.
  void letGo() noexcept;

  ado::Result query(std::string_view statement) override;
  std::int32_t execute(std::string_view statement) override;
  std::vector<ado::Written> write(const ado::Result& shape, const std::vector<ado::Change>& changes) override;
  std::vector<std::optional<ado::Row>> reread(const ado::Result& shape,
                                              const std::vector<ado::Identity>& identities) override;

 private:
  struct Opened {
    explicit Opened(const std::filesystem::path& path);
    ConnectedFile file;
    Database database;
    bool logIsOn = false;
  };

  // Awake, and opened again where the connection could not rest or the file was disturbed.
  Opened& opened();
  Database& database() { return opened().database; }
  Database& databaseToWrite();

  std::filesystem::path path_;
  std::unique_ptr<Opened> opened_;
  bool rests_ = false;
};

}  // namespace tarnel::sqlite
