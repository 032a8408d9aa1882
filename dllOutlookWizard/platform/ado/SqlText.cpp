#include "SqlText.h"

namespace tarnel {

std::string sqlText(std::string_view value) {
  std::string text = "'";
  for (const char c : value) text.append(c == '\'' ? 2 : 1, c);
  return text += '\'';
}

}  // namespace tarnel
