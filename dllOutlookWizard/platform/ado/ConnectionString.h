#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tarnel::ado {

// The parts of "Key=value;Key=value;". Keys are kept in upper case, without blanks around them; of a key that comes
// twice the last one counts. A value may be in single or double quotes, which are doubled inside it. Failure
// failure::engine for a text that can't be read.
std::map<std::string, std::string> parseConnectionString(std::string_view text);

// The value as it is written in such a text: in quotes where it can't be read back without them.
std::string connectionValue(std::string_view value);

}  // namespace tarnel::ado
