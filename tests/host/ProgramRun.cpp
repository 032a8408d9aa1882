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

std::string ProgramRun::shellCommand(const std::string& arguments) const {
  const std::string folder = home.path().string();
  std::string environment = "HOME='" + folder + "' LC_ALL=C";
  for (const char* kind : {"CONFIG", "DATA", "STATE"})
    environment += std::string(" XDG_") + kind + "_HOME='" + folder + "'";
  return "cd '" + folder + "' && " + environment + " '" + TARNEL_PROGRAM + "' " + arguments;
}

ProgramResult ProgramRun::operator()(const std::string& arguments, const std::string& input) const {
  home.write("input", input);
  const int status = std::system((shellCommand(arguments) + " <input >output 2>errors").c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentsOf(home / "output"), contentsOf(home / "errors")};
}

}  // namespace tarnel::test
