#pragma once

#include <filesystem>
#include <string>

#include "Connection.h"

namespace tarnel::sqlite {

// A connection to a task database: waits for others' locks, and every transaction is on disk when it ends. Failures
// name the file and say what to do where that is known: badStatement for a statement that can't be read, else engine.
class Database : public Connection {
 public:
  explicit Database(const std::filesystem::path& path, Opening opening = Opening::existing);

  // Lets readers and a writer work at the same time. Stays with the file, so nobody calls it who only reads.
  void useWriteAheadLog();
};

// What a user can do about the engine's result code, after a blank; empty where that isn't known.
std::string adviceFor(int code);

}  // namespace tarnel::sqlite
