#include "Tokens.h"

#include <array>

#include "Conversions.h"
#include "Failure.h"
#include "Locale.h"

namespace tarnel::ado {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
// Bytes beyond ASCII are letters of some language.
bool startsWord(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

class Scanner {
 public:
  Scanner(std::string_view text, std::int32_t failureNumber) : text_(text), failureNumber_(failureNumber) {}

  std::vector<Token> run() {
    while (at_ < text_.size()) {
      const char c = text_[at_];
      if (isBlank(c))
        ++at_;
      else if (c == '\'' || c == '"')
        quoted(TokenKind::text, c);
      else if (c == '#')
        quoted(TokenKind::date, c);
      else if (c == '[')
        quoted(TokenKind::quotedName, ']');
      else if (startsWord(c))
        word();
      else if (startsNumber())
        number();
      else
        symbol();
    }
    return std::move(tokens_);
  }

 private:
  char peek(std::size_t ahead) const { return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0'; }

  void add(TokenKind kind, std::size_t length) {
    tokens_.push_back({kind, std::string(text_.substr(at_, length))});
    at_ += length;
  }

  void quoted(TokenKind kind, char closing) {
    const std::size_t start = at_++;
    std::string value;
    while (at_ < text_.size()) {
      const char c = text_[at_++];
      if (c != closing) {
        value += c;
      } else if (kind == TokenKind::text && peek(0) == closing) {
        value += c;
        ++at_;
      } else {
        tokens_.push_back({kind, std::move(value)});
        return;
      }
    }
    throw Failure(failureNumber_, "Syntax error: what starts at " + std::string(text_.substr(start, 40)) +
                                      " has no closing " + closing);
  }

  void word() {
    std::size_t length = 1;
    while (startsWord(peek(length)) || isDigit(peek(length)) || peek(length) == '$') ++length;
    add(TokenKind::word, length);
  }

  // A point after a name divides table and column.
  bool startsNumber() const {
    if (isDigit(peek(0))) return true;
    const bool afterName =
        !tokens_.empty() && (tokens_.back().kind == TokenKind::word || tokens_.back().kind == TokenKind::quotedName);
    return peek(0) == '.' && isDigit(peek(1)) && !afterName;
  }

  void number() {
    std::size_t length = 0;
    while (isDigit(peek(length)) || peek(length) == '.') ++length;
    if (peek(length) == 'e' || peek(length) == 'E') {
      const std::size_t sign = peek(length + 1) == '+' || peek(length + 1) == '-' ? 1 : 0;
      if (isDigit(peek(length + 1 + sign))) {
        length += 1 + sign;
        while (isDigit(peek(length))) ++length;
      }
    }
    add(TokenKind::number, length);
  }

  void symbol() {
    static constexpr std::array<std::string_view, 6> pairs{"<>", "<=", ">=", "!=", "||", "=="};
    for (const std::string_view pair : pairs)
      if (text_.substr(at_, 2) == pair) return add(TokenKind::symbol, 2);
    add(TokenKind::symbol, 1);
  }

  std::string_view text_;
  std::int32_t failureNumber_;
  std::size_t at_ = 0;
  std::vector<Token> tokens_;
};

}  // namespace

bool Token::isWord(std::string_view word) const { return kind == TokenKind::word && equalsIgnoringCase(text, word); }

std::vector<Token> tokenize(std::string_view text, std::int32_t failureNumber) {
  return Scanner(text, failureNumber).run();
}

Variant literalValue(const Token& token, std::int32_t failureNumber) {
  switch (token.kind) {
    case TokenKind::text:
      return token.text;
    case TokenKind::number:
      return toDouble(token.text);
    case TokenKind::date:
      if (const auto date = parseIsoDate(token.text)) return *date;
      if (const auto date = Locale().parseDate(token.text)) return *date;
      throw Failure(failureNumber, "Syntax error in date in query expression '#" + token.text + "#'.");
    default:
      if (token.isWord("TRUE")) return true;
      if (token.isWord("FALSE")) return false;
      if (token.isWord("NULL")) return Null{};
      throw Failure(failureNumber, "Syntax error: a value was expected at '" + token.text + "'.");
  }
}

}  // namespace tarnel::ado
