#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>

#include "CommandWords.h"
#include "Input.h"
#include "ScriptDesktop.h"
#include "TestPlatform.h"
#include "frmOutWiz.h"

using namespace tarnel;

// The wizard's own form, on a machine without a database and without Outlook.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string lines(reinterpret_cast<const char*>(data), size);
  test::TestPlatform platform;
  std::istringstream commands(lines);
  std::ostringstream told;
  script::ScriptDesktop desktop(commands, told);
  {
    frmOutWiz form;
    form.load();
    form.showModal(desktop);
    fuzz::require(!form.Visible(), "the end of the input closes the form");
    form.unload();
  }
  fuzz::require(openForms().empty(), "no form is left open");

  std::istringstream facts(told.str());
  std::ptrdiff_t answers = 0;
  for (std::string line; std::getline(facts, line);) {
    const auto fact = nlohmann::json::parse(line, nullptr, false);
    fuzz::require(fact.is_object() && !fact.empty(), "each fact is an object on a line of its own");
    if (fact.contains("reply") || fact.contains("error")) ++answers;
  }
  fuzz::require(answers <= std::count(lines.begin(), lines.end(), '\n') + 1, "a command has one answer at most");
  return 0;
}
