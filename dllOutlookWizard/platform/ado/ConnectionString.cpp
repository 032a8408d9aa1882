#include "ConnectionString.h"

#include <algorithm>

#include "Conversions.h"
#include "Failure.h"

namespace tarnel::ado {
namespace {

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

[[noreturn]] void failUnreadable(std::string_view text, std::string_view why) {
  throw Failure(failure::engine, "The connection string can't be read, " + std::string(why) + ": " + std::string(text));
}

bool isDoubled(std::string_view text, std::size_t at) { return at + 1 < text.size() && text[at + 1] == text[at]; }

// Takes the value off the front of `rest`, up to the ";" after it or the end.
std::string takeValue(std::string_view text, std::string_view& rest) {
  rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
  if (!rest.starts_with('"') && !rest.starts_with('\'')) {
    const std::string_view value = rest.substr(0, rest.find(';'));
    rest.remove_prefix(value.size());
    return std::string(trimmed(value));
  }
  const char quote = rest.front();
  std::string value;
  std::size_t at = 1;
  while (at < rest.size() && (rest[at] != quote || isDoubled(rest, at))) {
    if (rest[at] == quote) ++at;
    value += rest[at++];
  }
  if (at >= rest.size()) failUnreadable(text, "a quoted value isn't closed");
  rest.remove_prefix(at + 1);
  rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
  if (!rest.empty() && rest.front() != ';') failUnreadable(text, "text follows a quoted value");
  return value;
}

}  // namespace

std::map<std::string, std::string> parseConnectionString(std::string_view text) {
  std::map<std::string, std::string> parts;
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::size_t end = rest.find_first_of("=;");
    const std::string_view key = trimmed(rest.substr(0, end));
    if (end != std::string_view::npos && rest[end] == '=') {
      rest.remove_prefix(end + 1);
      parts[toUpper(key)] = takeValue(text, rest);
    } else {
      if (!key.empty()) failUnreadable(text, "a key has no value");
      rest.remove_prefix(std::min(end, rest.size()));
    }
    if (!rest.empty()) rest.remove_prefix(1);
  }
  return parts;
}

std::string connectionValue(std::string_view value) {
  if (value == trimmed(value) && value.find_first_of(";'\"") == std::string_view::npos) return std::string(value);
  std::string quoted = "\"";
  for (const char c : value) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

}  // namespace tarnel::ado
