#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "TempFolder.h"

namespace tarnel::test {

// The values of these names, each with a bar after it.
inline std::string valuesOf(const nlohmann::json& object, std::initializer_list<const char*> names) {
  std::string text;
  for (const char* name : names) {
    const auto& value = object[name];
    text += (value.is_string() ? value.get<std::string>() : value.dump()) + "|";
  }
  return text;
}

// What one call of the program left.
struct ProgramResult {
  int exitCode = -1;
  std::string output;
  std::string errors;

  // Each line of the output, which must be JSON.
  std::vector<nlohmann::json> facts() const {
    std::vector<nlohmann::json> facts;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) facts.push_back(nlohmann::json::parse(line));
    return facts;
  }
  // The first fact whose "reply" is this; null when there is none.
  nlohmann::json reply(const std::string& command) const {
    for (const nlohmann::json& fact : facts())
      if (fact.value("reply", "") == command) return fact;
    return nullptr;
  }
};

// Calls the program `tarnel` with a user of its own, whose folders are empty at the start.
struct ProgramRun {
  // `arguments` as in a shell, `input` on the standard input.
  ProgramResult operator()(const std::string& arguments, const std::string& input = {}) const {
    home.write("input", input);
    const int status = std::system((shellCommand(arguments) + " <input >output 2>errors").c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentsOf(home / "output"), contentsOf(home / "errors")};
  }
  // The call as a shell takes it, for those who talk to the program while it runs.
  std::string shellCommand(const std::string& arguments) const {
    const std::string folder = home.path().string();
    std::string environment = "HOME='" + folder + "' LC_ALL=C";
    for (const char* kind : {"CONFIG", "DATA", "STATE"})
      environment += std::string(" XDG_") + kind + "_HOME='" + folder + "'";
    return "cd '" + folder + "' && " + environment + " '" + TARNEL_PROGRAM + "' " + arguments;
  }

  TempFolder home;
};

}  // namespace tarnel::test
