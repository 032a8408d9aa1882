#include "FilterParser.h"

#include "Conversions.h"
#include "Failure.h"

namespace tarnel::mailbox {
namespace {

// A filter deeper or longer than these is a mistake; the bounds keep it from exhausting the stack or the engine.
constexpr int deepest = 64;
constexpr int mostComparisons = 400;

bool isWordCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' || c == '-' ||
         c == '+' || c == '_' || (c & 0x80) != 0;
}

class Parser {
 public:
  explicit Parser(std::string_view text) : text_(text) {}

  Filter whole() {
    Filter filter = any();
    if (!atEnd()) fail("AND, OR or the end");
    return filter;
  }

 private:
  Filter any() { return joined(Filter::Kind::any, "OR", &Parser::all); }
  Filter all() { return joined(Filter::Kind::all, "AND", &Parser::single); }

  Filter joined(Filter::Kind kind, std::string_view word, Filter (Parser::*part)()) {
    Filter first = (this->*part)();
    if (!takeWord(word)) return first;
    Filter filter;
    filter.kind = kind;
    filter.parts.push_back(std::move(first));
    do filter.parts.push_back((this->*part)());
    while (takeWord(word));
    return filter;
  }

  Filter single() {
    if (++depth_ > deepest) failFilter(text_, "it is nested too deeply");
    Filter filter;
    if (takeWord("NOT")) {
      filter.kind = Filter::Kind::negation;
      filter.parts.push_back(single());
    } else if (take("(")) {
      filter = any();
      if (!take(")")) fail("a closing parenthesis");
    } else {
      filter = comparison();
    }
    --depth_;
    return filter;
  }

  Filter comparison() {
    if (++comparisons_ > mostComparisons) failFilter(text_, "it has too many comparisons");
    Filter filter;
    filter.kind = Filter::Kind::comparison;
    filter.property = propertyName();
    filter.comparison = comparisonSign();
    literal(filter);
    return filter;
  }

  std::string propertyName() {
    if (!take("[")) fail("a property name in brackets");
    const auto end = text_.find(']', at_);
    if (end == std::string_view::npos) fail("a closing bracket");
    std::string name(text_.substr(at_, end - at_));
    if (name.empty()) fail("a property name");
    at_ = end + 1;
    return name;
  }

  Filter::Comparison comparisonSign() {
    using enum Filter::Comparison;
    if (take("<>")) return unequal;
    if (take("<=")) return lessOrEqual;
    if (take(">=")) return greaterOrEqual;
    if (take("<")) return less;
    if (take(">")) return greater;
    if (take("=")) return equal;
    fail("a comparison (=, <>, <, <=, >, >=)");
  }

  void literal(Filter& filter) {
    skipBlanks();
    if (at_ < text_.size() && (text_[at_] == '\'' || text_[at_] == '"')) {
      filter.quoted = true;
      filter.literal = quotedText(text_[at_]);
      return;
    }
    const std::size_t start = at_;
    while (at_ < text_.size() && isWordCharacter(text_[at_])) ++at_;
    if (at_ == start) fail("a value");
    filter.literal = text_.substr(start, at_ - start);
  }

  std::string quotedText(char quote) {
    std::string result;
    for (++at_; at_ < text_.size(); ++at_) {
      if (text_[at_] == quote && text_.substr(at_ + 1, 1) != std::string_view(&quote, 1)) {
        ++at_;
        return result;
      }
      if (text_[at_] == quote) ++at_;
      result.push_back(text_[at_]);
    }
    fail("a closing quotation mark");
  }

  void skipBlanks() { at_ = std::min(text_.find_first_not_of(" \t\r\n", at_), text_.size()); }

  bool atEnd() {
    skipBlanks();
    return at_ == text_.size();
  }

  bool take(std::string_view sign) {
    skipBlanks();
    if (text_.substr(at_, sign.size()) != sign) return false;
    at_ += sign.size();
    return true;
  }

  bool takeWord(std::string_view word) {
    skipBlanks();
    const std::string_view candidate = text_.substr(at_, word.size());
    const std::size_t end = at_ + word.size();
    if (!equalsIgnoringCase(candidate, word) || (end < text_.size() && isWordCharacter(text_[end]))) return false;
    at_ = end;
    return true;
  }

  [[noreturn]] void fail(const std::string& expected) {
    skipBlanks();
    failFilter(text_, "at character " + std::to_string(at_ + 1) + " there should be " + expected);
  }

  std::string_view text_;
  std::size_t at_ = 0;
  int depth_ = 0;
  int comparisons_ = 0;
};

}  // namespace

Filter parseFilter(std::string_view text) { return Parser(text).whole(); }

void failFilter(std::string_view filter, const std::string& problem) {
  throw Failure(failure::automation, "The filter \"" + std::string(filter) + "\" can't be used: " + problem + ".",
                "Outlook.Items");
}

}  // namespace tarnel::mailbox
