#include "Conversions.h"

#include <gtest/gtest.h>

#include <cmath>

#include "FailureOf.h"

namespace tarnel::test {
namespace {

TEST(Conversions, halvesRoundToTheEvenNumber) {
  EXPECT_EQ(toLong(0.5), 0);
  EXPECT_EQ(toLong(1.5), 2);
  EXPECT_EQ(toLong(-2.5), -2);
  EXPECT_EQ(toLong("2.5"), 2);
  EXPECT_EQ(toLong(2147483647.4), 2147483647);
}

TEST(Conversions, numbersAreReadFromTextWhole) {
  EXPECT_EQ(toDouble(" +12.25 "), 12.25);
  EXPECT_EQ(toDouble("-1.5E+2"), -150);
  EXPECT_EQ(toDouble(".5"), 0.5);
  for (const char* text : {"", "12x", "inf", "nan", "-", "--1", "+-1", "0x10", "1 2", "1,5"})
    EXPECT_EQ(failureOf([&] { toDouble(text); }), failure::typeMismatch) << text;
}

TEST(Conversions, nullOverflowAndMismatchHaveTheirNumbers) {
  EXPECT_EQ(failureOf([] { toLong(Null{}); }), failure::invalidNull);
  EXPECT_EQ(failureOf([] { toText(Null{}); }), failure::invalidNull);
  EXPECT_EQ(failureOf([] { toLong(2147483647.5); }), failure::overflow);
  EXPECT_EQ(failureOf([] { toDate(1e300); }), failure::overflow);
  EXPECT_EQ(failureOf([] { toLong(std::nan("")); }), failure::overflow);
  EXPECT_EQ(failureOf([] { toSingle(1e300); }), failure::overflow);
  EXPECT_EQ(failureOf([] { toDouble("1e999"); }), failure::overflow);
  EXPECT_EQ(failureOf([] { toDate("tomorrow"); }), failure::typeMismatch);
  EXPECT_EQ(failureOf([] { toDouble(Bytes{1}); }), failure::typeMismatch);
}

TEST(Conversions, emptyCountsAsNothingAndNullJoinsAsNoText) {
  EXPECT_EQ(toLong(Variant()), 0);
  EXPECT_EQ(toText(Variant()), "");
  EXPECT_FALSE(toBoolean(Variant()));
  EXPECT_EQ(textOrEmpty(Null{}), "");
}

TEST(Conversions, textsOfValuesReadBack) {
  EXPECT_EQ(toText(0.1 + 0.2), "0.3");
  EXPECT_EQ(toText(0.1F), "0.1");
  EXPECT_EQ(toText(1e20), "1E+20");
  EXPECT_EQ(toText(true), "True");
  EXPECT_EQ(toLong(true), -1);
  EXPECT_TRUE(toBoolean("TRUE"));
  EXPECT_TRUE(toBoolean("-0.5"));
  EXPECT_EQ(toDate(toText(Date::of(2026, 11, 19, 8, 30))), Date::of(2026, 11, 19, 8, 30));
  EXPECT_FALSE(isDate(40000));
  EXPECT_TRUE(isDate("2026-11-19"));
}

TEST(Conversions, caseIsIgnoredForPlainLettersAlone) {
  EXPECT_TRUE(equalsIgnoringCase("tskOutEntityID", "TSKOUTENTITYID"));
  EXPECT_FALSE(equalsIgnoringCase("ä", "Ä"));
  EXPECT_FALSE(equalsIgnoringCase("a", "ab"));
}

}  // namespace
}  // namespace tarnel::test
