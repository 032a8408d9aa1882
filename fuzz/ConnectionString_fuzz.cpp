#include "ConnectionString.h"
#include "Input.h"

using namespace tarnel;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  fuzz::answered([&] {
    for (const auto& [key, value] : ado::parseConnectionString(text))
      fuzz::require(key.find_first_of("abcdefghijklmnopqrstuvwxyz") == std::string::npos, "keys are in upper case");
  });
  // Any path can be named.
  std::string quoted;
  for (const char c : text) quoted += c == '"' ? "\"\"" : std::string(1, c);
  const auto parts = ado::parseConnectionString("Provider=x;Data Source=\"" + quoted + "\";Other=1");
  fuzz::require(parts.at("DATA SOURCE") == text, "a quoted value is kept to the letter");
  fuzz::require(parts.at("OTHER") == "1", "what follows a quoted value is read");
  return 0;
}
