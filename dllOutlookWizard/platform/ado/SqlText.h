#pragma once

#include <string>
#include <string_view>

namespace tarnel {

// The value as a text of a statement: in single quotes, those inside it doubled.
std::string sqlText(std::string_view value);

}  // namespace tarnel
