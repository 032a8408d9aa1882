#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Variant.h"

namespace tarnel::ado {

enum class TokenKind { word, quotedName, text, number, date, symbol };

// A piece of a statement, a filter or a sort order. `text` is what is between the delimiters, doubled quotes made
// single; for a word, a number and a symbol it is the piece as written.
struct Token {
  TokenKind kind = TokenKind::symbol;
  std::string text;

  bool isWord(std::string_view word) const;
  bool isSymbol(std::string_view symbol) const { return kind == TokenKind::symbol && text == symbol; }
};

// Splits by Jet's lexical rules: texts in single or double quotes, names in brackets, dates between "#". A literal
// needs no blank after it. Failure `failureNumber` when a delimiter isn't closed.
std::vector<Token> tokenize(std::string_view text, std::int32_t failureNumber);

// The value of a literal: text, number or date, the words TRUE, FALSE and NULL. Failure `failureNumber` for a token
// that is none, and for a date literal that is no date (month first, or ISO).
Variant literalValue(const Token& token, std::int32_t failureNumber);

}  // namespace tarnel::ado
