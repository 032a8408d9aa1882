#pragma once

#include <string>
#include <string_view>

namespace tarnel::host {

// Texts from files as they may go to a terminal, where control characters could do anything: each becomes a question
// mark. Line ends and tabs stay.
std::string forTerminal(std::string_view text);
// The same on one line: line ends and tabs become blanks.
std::string onOneLine(std::string_view text);

}  // namespace tarnel::host
