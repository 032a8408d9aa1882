#include "TerminalText.h"

#include <algorithm>

namespace tarnel::host {
namespace {

bool isControl(unsigned char c) { return c < 0x20 || c == 0x7F; }
bool isLayout(char c) { return c == '\n' || c == '\t'; }

// U+0080 to U+009F, which have two bytes.
bool startsHighControl(std::string_view text) {
  return text.size() > 1 && text[0] == '\xC2' && static_cast<unsigned char>(text[1]) >= 0x80 &&
         static_cast<unsigned char>(text[1]) <= 0x9F;
}

}  // namespace

std::string forTerminal(std::string_view text) {
  std::string shown;
  for (; !text.empty(); text.remove_prefix(1)) {
    if (text.starts_with("\r\n")) continue;
    if (startsHighControl(text))
      text.remove_prefix(1), shown += '?';
    else
      shown += isControl(static_cast<unsigned char>(text.front())) && !isLayout(text.front()) ? '?' : text.front();
  }
  return shown;
}

std::string onOneLine(std::string_view text) {
  std::string shown = forTerminal(text);
  std::replace_if(shown.begin(), shown.end(), isLayout, ' ');
  return shown;
}

}  // namespace tarnel::host
