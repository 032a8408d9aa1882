#include "JetStatement.h"

#include <algorithm>
#include <array>

#include "Conversions.h"
#include "Failure.h"
#include "KeyColumns.h"
#include "SqlText.h"

namespace tarnel::sqlite {
namespace {

using ado::Token;
using ado::TokenKind;

bool isComparison(const Token& token) {
  static constexpr std::array<std::string_view, 8> signs{"=", "==", "<>", "!=", "<", ">", "<=", ">="};
  return token.kind == TokenKind::symbol && std::find(signs.begin(), signs.end(), token.text) != signs.end();
}

bool isTruth(const Token& token) { return token.isWord("TRUE") || token.isWord("FALSE"); }

// Beside one of these no text is compared. Named collations would keep the engine from its indexes on such columns.
bool isNoText(const Token& token) {
  return token.kind == TokenKind::number || token.kind == TokenKind::date || token.isSymbol("-") || isTruth(token) ||
         token.isWord("NULL");
}

std::string translated(const Token& token) {
  switch (token.kind) {
    case TokenKind::text:
      return sqlText(token.text);
    case TokenKind::date:
      return sqlText(isoText(toDate(ado::literalValue(token, failure::badStatement))));
    case TokenKind::quotedName:
      return "[" + token.text + "]";
    default:
      if (token.isWord("TRUE")) return "1";
      if (token.isWord("FALSE")) return "0";
      return token.isSymbol("&") ? "||" : token.text;
  }
}

class Translation {
 public:
  explicit Translation(const std::vector<Token>& tokens) : tokens_(tokens) {}

  std::string run() {
    for (at_ = 0; at_ < tokens_.size(); ++at_) {
      const Token& token = tokens_[at_];
      if (endsOrderTerm(token)) write("COLLATE NOCASE");
      if (token.isSymbol("(")) ++depth_;
      if (token.isSymbol(")")) --depth_;
      if (comparesTexts(token)) collate();
      if (comparesTruths(token)) {
        const bool wantsTrue = token.text.starts_with("=") == tokens_[++at_].isWord("TRUE");
        write(wantsTrue ? "<> 0" : "= 0");
        continue;
      }
      // "DELETE * FROM" is Jet's.
      if (token.isSymbol("*") && at_ > 0 && tokens_[at_ - 1].isWord("DELETE")) continue;
      write(translated(token));
      followOrder(token);
    }
    if (inOrderTerm_) write("COLLATE NOCASE");
    return std::move(sql_);
  }

 private:
  const Token* neighbour(std::size_t at) const { return at < tokens_.size() ? &tokens_[at] : nullptr; }
  bool isWordAt(std::size_t at, std::string_view word) const { return at < tokens_.size() && tokens_[at].isWord(word); }

  void write(std::string_view piece) {
    if (!sql_.empty()) sql_ += ' ';
    sql_ += piece;
  }
  // Keys compare to the letter, other texts without regard to case.
  void collate() {
    const bool byKey =
        (at_ > 0 && namesKeys(at_ - 1)) || (isComparison(tokens_[at_]) && namesKeys(lastOfName(at_ + 1)));
    write(byKey ? "COLLATE BINARY" : "COLLATE NOCASE");
  }
  bool namesKeys(std::size_t at) const {
    const Token* token = neighbour(at);
    return token && (token->kind == TokenKind::word || token->kind == TokenKind::quotedName) &&
           ado::holdsKeys(token->text);
  }
  // Of a name like table.column that begins here, where the column is.
  std::size_t lastOfName(std::size_t at) const {
    while (neighbour(at + 1) && tokens_[at + 1].isSymbol(".") && neighbour(at + 2)) at += 2;
    return at;
  }

  // Whether this token compares with TRUE or FALSE. Any number but 0 is true: other programs write -1.
  bool comparesTruths(const Token& token) const {
    const Token* right = neighbour(at_ + 1);
    static constexpr std::array<std::string_view, 4> signs{"=", "==", "<>", "!="};
    return token.kind == TokenKind::symbol && std::find(signs.begin(), signs.end(), token.text) != signs.end() &&
           right && isTruth(*right) && !inAssignments();
  }

  // Whether a comparison that may be one of texts starts at this token, so that its left side is complete.
  bool comparesTexts(const Token& token) const {
    const Token* left = at_ > 0 ? &tokens_[at_ - 1] : nullptr;
    if (!left || isNoText(*left)) return false;
    if (isComparison(token)) {
      // SET a = b in an UPDATE gives values and compares none.
      const Token* right = neighbour(at_ + 1);
      return !inAssignments() && right && !isNoText(*right);
    }
    if (left->isWord("NOT")) return false;
    const std::size_t word = token.isWord("NOT") ? at_ + 1 : at_;
    if (isWordAt(word, "BETWEEN")) return word + 1 < tokens_.size() && !isNoText(tokens_[word + 1]);
    return isWordAt(word, "IN") && word + 2 < tokens_.size() && !isNoText(tokens_[word + 2]);
  }

  bool inAssignments() const {
    if (!isWordAt(0, "UPDATE")) return false;
    for (std::size_t at = at_; at-- > 0;) {
      if (tokens_[at].isWord("WHERE")) return false;
      if (tokens_[at].isWord("SET")) return true;
    }
    return false;
  }

  bool endsOrderTerm(const Token& token) {
    if (!inOrderTerm_) return false;
    const bool ends = (depth_ == orderDepth_ && (token.isSymbol(",") || token.isWord("ASC") || token.isWord("DESC") ||
                                                 token.isWord("LIMIT") || token.isSymbol(")")));
    if (ends) inOrderTerm_ = false;
    return ends;
  }

  void followOrder(const Token& token) {
    if (token.isWord("BY") && at_ > 0 && tokens_[at_ - 1].isWord("ORDER")) {
      inOrder_ = inOrderTerm_ = true;
      orderDepth_ = depth_;
    } else if (inOrder_ && depth_ < orderDepth_) {
      inOrder_ = false;
    } else if (inOrder_ && depth_ == orderDepth_) {
      if (token.isSymbol(",")) inOrderTerm_ = true;
      if (token.isWord("LIMIT")) inOrder_ = false;
    }
  }

  const std::vector<Token>& tokens_;
  std::size_t at_ = 0;
  std::string sql_;
  int depth_ = 0;
  int orderDepth_ = 0;
  bool inOrder_ = false;
  bool inOrderTerm_ = false;
};

bool isName(const Token& token) { return token.kind == TokenKind::word || token.kind == TokenKind::quotedName; }

// The position of the FROM of a SELECT that can be written back to; none for any other.
std::optional<std::size_t> plainFrom(const std::vector<Token>& tokens) {
  static constexpr std::array<std::string_view, 7> joining{"DISTINCT", "GROUP",     "HAVING", "UNION",
                                                           "EXCEPT",   "INTERSECT", "JOIN"};
  std::optional<std::size_t> from;
  int depth = 0;
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    const Token& token = tokens[at];
    depth += token.isSymbol("(") ? 1 : token.isSymbol(")") ? -1 : 0;
    if (depth != 0) continue;
    if (token.isWord("FROM") && !from) from = at;
    for (const std::string_view word : joining)
      if (token.isWord(word)) return {};
  }
  return from;
}

bool endsTableName(const Token& token) {
  static constexpr std::array<std::string_view, 3> clauses{"WHERE", "ORDER", "LIMIT"};
  return std::any_of(clauses.begin(), clauses.end(), [&](std::string_view word) { return token.isWord(word); });
}

// What a table is called after FROM: by its alias where it has one. Empty when there is more than one table.
std::string tableCalled(const std::vector<Token>& tokens, std::size_t from) {
  std::string called;
  for (std::size_t at = from + 1; at < tokens.size() && !endsTableName(tokens[at]); ++at) {
    if (tokens[at].isWord("AS")) continue;
    if (!isName(tokens[at])) return {};
    called = tokens[at].text;
  }
  return called;
}

}  // namespace

JetStatement::JetStatement(std::string_view text) : tokens_(ado::tokenize(text, failure::badStatement)) {
  while (!tokens_.empty() && tokens_.back().isSymbol(";")) tokens_.pop_back();
  if (tokens_.empty()) throw Failure(failure::badStatement, "Command text was not set for the command object.");
  if (std::any_of(tokens_.begin(), tokens_.end(), [](const Token& token) { return token.isSymbol(";"); }))
    throw Failure(failure::badStatement, "Characters found after end of SQL statement: " + std::string(text));
  sql_ = Translation(tokens_).run();
}

bool JetStatement::firstWordIs(const std::vector<std::string_view>& words) const {
  return std::any_of(words.begin(), words.end(),
                     [this](std::string_view word) { return tokens_.front().isWord(word); });
}

std::optional<std::string> JetStatement::sqlWithRowId() const {
  const auto from = isSelect() ? plainFrom(tokens_) : std::nullopt;
  if (!from) return {};
  const std::string table = tableCalled(tokens_, *from);
  if (table.empty()) return {};

  std::vector<Token> tokens = tokens_;
  const std::vector<Token> rowId{
      {TokenKind::symbol, ","}, {TokenKind::quotedName, table}, {TokenKind::symbol, "."}, {TokenKind::word, "rowid"}};
  tokens.insert(tokens.begin() + static_cast<std::ptrdiff_t>(*from), rowId.begin(), rowId.end());
  return Translation(tokens).run();
}

}  // namespace tarnel::sqlite
