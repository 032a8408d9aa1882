#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "StatementCache.h"

struct sqlite3;

namespace tarnel::sqlite {

// An open database file: waits for others' locks, and every transaction is on disk when it ends.
class Database {
 public:
  enum class Opening { existing, orNew };
  // How long others' locks are waited for.
  static constexpr int busyMilliseconds = 5000;

  // Failure naming the file when it can't be opened.
  explicit Database(const std::filesystem::path& path, Opening opening = Opening::existing);

  sqlite3* handle() const { return handle_.get(); }
  StatementCache& statements() { return statements_; }
  // Runs the engine's own statements, any number of them.
  void run(const std::string& script);
  // Lets readers and a writer work at the same time. Stays with the file, so nobody calls it who only reads.
  void useWriteAheadLog();

 private:
  struct Closer {
    void operator()(sqlite3* handle) const;
  };
  std::unique_ptr<sqlite3, Closer> handle_;
  StatementCache statements_;  // of this connection, so that it goes first
};

// A transaction that goes back unless it was committed.
class Transaction {
 public:
  // Takes the write lock at once.
  explicit Transaction(Database& database);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void commit();

 private:
  Database& database_;
  bool open_ = true;
};

// Throws the engine's last complaint, with the file's name and what to do where that is known. `number` is the
// failure's number when the complaint has none of its own.
[[noreturn]] void failOf(sqlite3* database, std::int32_t number);

// What a user can do about the engine's result code, behind a blank; empty where that isn't known.
std::string adviceFor(int code);

}  // namespace tarnel::sqlite
