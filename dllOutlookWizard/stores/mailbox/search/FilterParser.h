#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarnel::mailbox {

// A text in Outlook's filter language, read: a tree of comparisons joined by AND, OR and NOT.
struct Filter {
  enum class Kind { all, any, negation, comparison };
  enum class Comparison { equal, unequal, less, lessOrEqual, greater, greaterOrEqual };

  Kind kind = Kind::all;
  std::vector<Filter> parts;  // of all, any and negation; a negation has one

  std::string property;
  Comparison comparison = Comparison::equal;
  std::string literal;  // without its quotes
  bool quoted = false;
};

//   filter     = and { OR and }
//   and        = not { AND not }
//   not        = NOT not | "(" filter ")" | "[" name "]" operator literal
//   operator   = "=" | "<>" | "<" | "<=" | ">" | ">="
//   literal    = 'text' | "text" | word        (a quote inside is doubled)
//
// Words are read without regard to case. Failure 440 for any other text, an empty one too; it tells where it stops.
Filter parseFilter(std::string_view text);

[[noreturn]] void failFilter(std::string_view filter, const std::string& problem);

}  // namespace tarnel::mailbox
