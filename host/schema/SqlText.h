#pragma once

#include <string>
#include <string_view>

namespace tarnel::host {

// A text as a literal of SQL, its quotes doubled.
std::string sqlText(std::string_view text);

}  // namespace tarnel::host
