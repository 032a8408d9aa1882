#include "CommandWords.h"

#include <algorithm>

namespace tarnel::script {
namespace {

constexpr std::string_view blanks = " \t\r";

// Takes the word after an opening quote and its closing quote off the front.
std::optional<std::string> takeQuoted(std::string_view& line) {
  std::string word;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '"') {
      line.remove_prefix(i + 1);
      return word;
    }
    const bool escape = line[i] == '\\' && i + 1 < line.size() && (line[i + 1] == '"' || line[i + 1] == '\\');
    if (escape) ++i;
    word += line[i];
  }
  return {};
}

std::string takePlain(std::string_view& line) {
  const std::size_t end = std::min(line.find_first_of(blanks), line.size());
  std::string word(line.substr(0, end));
  line.remove_prefix(end);
  return word;
}

}  // namespace

std::optional<std::vector<std::string>> commandWords(std::string_view line) {
  std::vector<std::string> words;
  while (true) {
    const std::size_t start = line.find_first_not_of(blanks);
    if (start == std::string_view::npos) return words;
    line.remove_prefix(start);
    if (line.front() != '"') {
      words.push_back(takePlain(line));
      continue;
    }
    line.remove_prefix(1);
    auto word = takeQuoted(line);
    const bool ended = line.empty() || blanks.find(line.front()) != std::string_view::npos;
    if (!word || !ended) return {};
    words.push_back(std::move(*word));
  }
}

}  // namespace tarnel::script
