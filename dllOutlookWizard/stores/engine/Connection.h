#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "StatementCache.h"

struct sqlite3;

namespace tarnel::sqlite {

// What the engine refused.
struct Refusal {
  enum class Stage { opening, preparing, running };

  // Running a script counts as preparing: its texts are read one after the other.
  Stage stage;
  int code;          // the engine's extended result code
  std::string told;  // the engine's own words
  std::string file;  // its full path; while opening, the path as it was given
};

// An open file of the engine's, for one thread at a time. Statement and Transaction work on it and must not outlive it.
// Whoever wants to see all that is done through it (a trace of its statements, a session that records its changes)
// attaches to `handle` where the constructor ends.
class Connection {
 public:
  enum class Opening { existing, orNew };
  // Words a refusal as the store does that uses the connection, and throws it as a Failure. Never returns.
  using Fail = std::function<void(const Refusal&)>;

  // Other connections' locks are waited for so long. A file that can't be opened goes to `fail`, as do all refusals
  // from then on, those of statements and transactions, too.
  Connection(const std::filesystem::path& path, Opening opening, int busyMilliseconds, Fail fail);
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  sqlite3* handle() const { return handle_.get(); }
  int busyMilliseconds() const { return busyMilliseconds_; }
  StatementCache& statements() { return statements_; }

  // Runs any number of statements without parameters.
  void run(const std::string& script);
  std::int64_t lastInsertId() const;
  // Rows that the last INSERT, UPDATE or DELETE touched.
  std::int64_t changedRows() const;

  // Fails with what the engine refused last.
  [[noreturn]] void fail(Refusal::Stage stage) const;

 private:
  struct Closer {
    void operator()(sqlite3* handle) const;
  };
  [[noreturn]] void raise(const Refusal& refusal) const;

  Fail fail_;
  int busyMilliseconds_;
  std::unique_ptr<sqlite3, Closer> handle_;
  StatementCache statements_;  // after its connection, so that it goes first
};

}  // namespace tarnel::sqlite
