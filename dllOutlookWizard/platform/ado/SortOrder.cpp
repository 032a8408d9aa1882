#include "SortOrder.h"

#include "Failure.h"
#include "Tokens.h"
#include "Values.h"

namespace tarnel::ado {

SortOrder::SortOrder(std::string_view text, const RowStore& rows) {
  const std::vector<Token> tokens = tokenize(text, failure::invalidArgument);
  for (std::size_t at = 0; at < tokens.size();) {
    const bool isName = tokens[at].kind == TokenKind::word || tokens[at].kind == TokenKind::quotedName;
    if (!isName) throw Failure(failure::invalidArgument, "Sort order can't be read: " + std::string(text));
    Term term{rows.columnNamed(tokens[at++].text), false};
    if (at < tokens.size() && (tokens[at].isWord("ASC") || tokens[at].isWord("DESC")))
      term.descending = tokens[at++].isWord("DESC");
    terms_.push_back(term);
    if (at == tokens.size()) break;
    if (!tokens[at++].isSymbol(",") || at == tokens.size())
      throw Failure(failure::invalidArgument, "Sort order can't be read: " + std::string(text));
  }
}

bool SortOrder::before(const RowStore& rows, std::size_t left, std::size_t right) const {
  for (const Term& term : terms_) {
    const auto order = compareValues(rows.value(left, term.column), rows.value(right, term.column));
    if (order != 0) return term.descending ? order > 0 : order < 0;
  }
  return false;
}

}  // namespace tarnel::ado
