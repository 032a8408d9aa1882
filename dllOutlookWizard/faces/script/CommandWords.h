#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnel::script {

// The words of a command's line, parted by blanks. A word with blanks is in double quotes, in which \" is a quote
// and \\ a backslash. None when a quote is left open or text touches a closing one.
std::optional<std::vector<std::string>> commandWords(std::string_view line);

}  // namespace tarnel::script
