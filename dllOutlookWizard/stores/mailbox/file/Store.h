#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "ConnectedFile.h"
#include "Connection.h"
#include "Statement.h"
#include "Transaction.h"

namespace tarnel::mailbox {

using sqlite::SqlValue;
using sqlite::Statement;

// The connection to one mailbox file: runs statements, keeps transactions whole, and notices when the file went away.
// Whoever else has the file open, in this process or another, sees each change when its transaction ends.
class Store {
 public:
  // Failure when the mailbox is out of reach, whatever the reason; the attempt writes nothing.
  explicit Store(const std::filesystem::path& path);
  // Leaves all in the file itself, also while others have it open but don't read it just then.
  ~Store();
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;

  const std::filesystem::path& path() const { return file_.path(); }
  // 16 bytes that no other mailbox has.
  const std::string& id() const { return id_; }

  // Failure when the file has gone or was replaced since it was opened.
  void requireReach() const;
  bool isInReach() const { return file_.isInReach(); }

  // The end of a use, see ConnectedFile; false when the connection can't rest now.
  bool rest();
  // The next use. False when the file was touched meanwhile; Failure when it can't be written.
  bool wake();

  // Failures of the statement name the mailbox.
  Statement prepare(std::string_view sql) { return {connection_, sql}; }
  // Runs `work` as one transaction: all of it is in the file when this returns, or, when it throws, nothing. Inside
  // another transaction it is part of that one.
  void write(const std::function<void()>& work);
  // Runs `work` on one state of the file, whatever others write meanwhile.
  void read(const std::function<void()>& work);
  std::int64_t lastInsertId() const { return connection_.lastInsertId(); }
  // Rows that the last INSERT, UPDATE or DELETE touched.
  std::int64_t changedRows() const { return connection_.changedRows(); }
  // The folders, which no mailbox ever changes, by their numbers.
  const std::map<std::int64_t, std::string>& folders() const { return folders_; }
  // The number of a property's name, which no mailbox ever takes back; none for a name that it doesn't know. Case is
  // ignored.
  std::optional<std::int64_t> nameId(std::string_view name);

  // Grows with every change that this connection made; `refreshGeneration` also takes changes of others in.
  std::uint64_t generation() const { return generation_; }
  std::uint64_t refreshGeneration();

 private:
  void requireWritable();
  void requireSoundness();
  void inTransaction(sqlite::Transaction::Kind kind, const std::function<void()>& work);

  sqlite::ConnectedFile file_;
  std::filesystem::path folder_;
  std::int64_t writable_ = 0;  // the file's time of change when its rights were looked at
  sqlite::Connection connection_;
  std::string id_;
  std::map<std::int64_t, std::string> folders_;
  std::map<std::string, std::int64_t, std::less<>> nameIds_;  // those asked for, as they were spelt
  std::uint64_t generation_ = 1;
  std::int64_t seenVersion_ = 0;
  bool inTransaction_ = false;
};

}  // namespace tarnel::mailbox
