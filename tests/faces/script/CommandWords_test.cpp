#include "CommandWords.h"

#include <gtest/gtest.h>

namespace tarnel::script {
namespace {

using Words = std::vector<std::string>;

TEST(CommandWords, quotedWordsKeepBlanksQuotesAndBackslashes) {
  EXPECT_EQ(commandWords("  choose bar(0)\tPICK  \"A & B\"\r"), (Words{"choose", "bar(0)", "PICK", "A & B"}));
  EXPECT_EQ(commandWords(R"(x "say \"hi\" \\ \n" "")"), (Words{"x", R"(say "hi" \ \n)", ""}));
  EXPECT_EQ(commandWords(R"(x C:\y)"), (Words{"x", R"(C:\y)"}));
  EXPECT_EQ(commandWords("  "), Words{});
}

TEST(CommandWords, quoteThatIsOpenOrTouchedByTextIsRefused) {
  for (const char* line : {R"(x ")", R"(x "a)", R"(x "a\")", R"(x "a"b)", R"(x "a""b")"})
    EXPECT_FALSE(commandWords(line)) << line;
}

}  // namespace
}  // namespace tarnel::script
