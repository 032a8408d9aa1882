#include "SqlText.h"

namespace tarnel::host {

std::string sqlText(std::string_view text) {
  std::string literal = "'";
  for (const char c : text) {
    literal += c;
    if (c == '\'') literal += c;
  }
  return literal + "'";
}

}  // namespace tarnel::host
