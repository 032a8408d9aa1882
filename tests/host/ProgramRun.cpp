#include "ProgramRun.h"

#include <sys/wait.h>

#include <cstdlib>
#include <sstream>

namespace tarnel::test {

std::vector<nlohmann::json> ProgramResult::facts() const {
  std::vector<nlohmann::json> facts;
  std::istringstream lines(output);
  for (std::string line; std::getline(lines, line);) facts.push_back(nlohmann::json::parse(line));
  return facts;
}

nlohmann::json ProgramResult::reply(const std::string& command) const {
  for (const nlohmann::json& fact : facts())
    if (fact.value("reply", "") == command) return fact;
  return nullptr;
}

ProgramResult ProgramRun::operator()(const std::string& arguments, const std::string& input) const {
  const std::string folder = home.path().string();
  home.write("input", input);
  std::string environment = "HOME='" + folder + "' LC_ALL=C";
  for (const char* kind : {"CONFIG", "DATA", "STATE"})
    environment += std::string(" XDG_") + kind + "_HOME='" + folder + "'";
  const std::string command =
      "cd '" + folder + "' && " + environment + " '" + TARNEL_PROGRAM + "' " + arguments + " <input >output 2>errors";
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentsOf(home / "output"), contentsOf(home / "errors")};
}

}  // namespace tarnel::test
