#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "TempFolder.h"

namespace tarnel::test {

// What one call of the program left behind.
struct ProgramResult {
  int exitCode = -1;
  std::string output;
  std::string errors;

  // Each line of the output, which must be JSON.
  std::vector<nlohmann::json> facts() const;
  // The first fact whose "reply" is this; null when there is none.
  nlohmann::json reply(const std::string& command) const;
};

// Calls the program `tarnel` with a user of its own, whose folders are empty at the start.
class ProgramRun {
 public:
  // `arguments` as in a shell, `input` on the standard input.
  ProgramResult operator()(const std::string& arguments, const std::string& input = {}) const;
  // The call as a shell takes it, for those who talk to the program while it runs.
  std::string shellCommand(const std::string& arguments) const;

  TempFolder home;
};

}  // namespace tarnel::test
