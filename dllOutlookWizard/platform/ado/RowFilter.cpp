#include "RowFilter.h"

#include <algorithm>
#include <array>
#include <utility>

#include "Conversions.h"
#include "Failure.h"
#include "Tokens.h"
#include "Values.h"

namespace tarnel::ado {
namespace {

[[noreturn]] void failUnreadable(std::string_view text) {
  throw Failure(failure::invalidArgument, "Filter can't be read: " + std::string(text));
}

// The token at `at`, with a sign joined to the number after it.
Token takeValue(const std::vector<Token>& tokens, std::size_t& at) {
  const Token& first = tokens[at++];
  if (!first.isSymbol("-") || at == tokens.size() || tokens[at].kind != TokenKind::number) return first;
  return {TokenKind::number, "-" + tokens[at++].text};
}

}  // namespace

RowFilter::RowFilter(std::string_view text, const RowStore& rows) {
  using enum Operator;
  static constexpr std::array<std::pair<std::string_view, Operator>, 6> operators{
      {{"=", equal}, {"<>", notEqual}, {"<", less}, {">", greater}, {"<=", lessOrEqual}, {">=", greaterOrEqual}}};

  const std::vector<Token> tokens = tokenize(text, failure::invalidArgument);
  for (std::size_t at = 0; at < tokens.size();) {
    if (tokens.size() - at < 3) failUnreadable(text);
    const Token& name = tokens[at++];
    if (name.kind != TokenKind::word && name.kind != TokenKind::quotedName) failUnreadable(text);
    const Token& sign = tokens[at++];
    const auto found =
        std::find_if(operators.begin(), operators.end(), [&](const auto& one) { return sign.isSymbol(one.first); });
    if (found == operators.end()) failUnreadable(text);
    const std::size_t column = rows.columnNamed(name.text);
    const Variant value = literalValue(takeValue(tokens, at), failure::invalidArgument);
    conditions_.push_back({column, found->second, comparable(value, rows.column(column))});
    if (at < tokens.size() && (!tokens[at++].isWord("AND") || at == tokens.size())) failUnreadable(text);
  }
}

bool RowFilter::passes(const RowStore& rows, std::size_t row) const {
  return std::all_of(conditions_.begin(), conditions_.end(),
                     [&](const Condition& condition) { return holds(rows.value(row, condition.column), condition); });
}

bool RowFilter::holds(const Variant& held, const Condition& condition) {
  // Here, unlike in a statement, Null can be asked for: "column = Null" and "column <> Null".
  if (held.isNull() != condition.value.isNull())
    return condition.value.isNull() && condition.comparison == Operator::notEqual;
  const auto order = compareValues(held, condition.value);
  switch (condition.comparison) {
    case Operator::equal:
      return order == 0;
    case Operator::notEqual:
      return order != 0;
    case Operator::less:
      return order < 0;
    case Operator::greater:
      return order > 0;
    case Operator::lessOrEqual:
      return order <= 0;
    case Operator::greaterOrEqual:
      return order >= 0;
  }
  return false;
}

}  // namespace tarnel::ado
