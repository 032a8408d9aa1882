#include "ConnectionString.h"

#include <gtest/gtest.h>

#include "Failure.h"

namespace tarnel::ado {
namespace {

using Parts = std::map<std::string, std::string>;

TEST(ConnectionString, keysAreUpperCaseAndBlanksAroundPartsDoNotCount) {
  EXPECT_EQ(parseConnectionString(" Provider = Some.Engine ;data source= /a b/c.mdb ;; "),
            (Parts{{"PROVIDER", "Some.Engine"}, {"DATA SOURCE", "/a b/c.mdb"}}));
  EXPECT_EQ(parseConnectionString("A=1;a=2;B=;C=x=y"), (Parts{{"A", "2"}, {"B", ""}, {"C", "x=y"}}));
  EXPECT_EQ(parseConnectionString(""), Parts{});
}

TEST(ConnectionString, quotedValuesHoldSemicolonsAndDoubledQuotes) {
  EXPECT_EQ(parseConnectionString(R"(A="x;y";B='it''s';C="he said ""so""" ;D="")"),
            (Parts{{"A", "x;y"}, {"B", "it's"}, {"C", "he said \"so\""}, {"D", ""}}));
}

TEST(ConnectionString, aValueIsReadBackAsItWas) {
  EXPECT_EQ(connectionValue("/a b/c.mdb"), "/a b/c.mdb");
  for (const std::string value : {"", "a;b", "'a'", "\"a\";", " a ", "a=b"})
    EXPECT_EQ(parseConnectionString("A=" + connectionValue(value) + ";B=1"), (Parts{{"A", value}, {"B", "1"}}))
        << value;
}

TEST(ConnectionString, whatCanNotBeReadFails) {
  for (const char* text : {"A=\"open", "A='x'y;", "no value", "A='x''"})
    EXPECT_THROW(parseConnectionString(text), Failure) << text;
}

}  // namespace
}  // namespace tarnel::ado
