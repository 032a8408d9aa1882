#include "IcsOutput.h"

#include "IcsLines.h"

namespace tarnel::mailbox {

void IcsOutput::line(std::string_view text) {
  // Octets of a line; the blank that leads a continuation is one of them.
  constexpr std::size_t longest = 75;
  std::size_t room = longest;
  while (text.size() > room) {
    std::size_t end = room;
    // A fold inside a character would leave two broken halves.
    while (end > 1 && (text[end] & 0xC0) == 0x80) --end;
    result_.append(text.substr(0, end)) += "\r\n ";
    text.remove_prefix(end);
    room = longest - 1;
  }
  result_.append(text) += "\r\n";
}

void IcsOutput::text(std::string_view name, std::string_view value) {
  if (!value.empty()) line(std::string(name) + ":" + escaped(value));
}

}  // namespace tarnel::mailbox
