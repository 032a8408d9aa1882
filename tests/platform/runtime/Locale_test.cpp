#include "Locale.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

TEST(Locale, datesAreWrittenInTheSystemsOrder) {
  const Date date = Date::of(2026, 11, 19, 8, 5, 9);
  EXPECT_EQ(Locale().longDate(date), "Thursday, November 19, 2026");
  EXPECT_EQ(Locale().generalDate(date), "11/19/2026 08:05:09");
  EXPECT_EQ(Locale().generalDate(date.wholeDay()), "11/19/2026");
  EXPECT_EQ(Locale({.shortDate = "%d.%m.%Y"}).shortDate(Date::of(1899, 12, 29, 6)), "29.12.1899");
}

TEST(Locale, shortDateIsReadBackInItsOwnOrderAlone) {
  const Locale german({.shortDate = "%d.%m.%Y"});
  EXPECT_EQ(german.parseDate("19.11.2026 8:30 PM"), Date::of(2026, 11, 19, 20, 30));
  EXPECT_EQ(german.parseDate("19.11.2026 12:00 AM"), Date::of(2026, 11, 19));
  EXPECT_EQ(Locale().parseDate("2/9/2026 11:59 PM"), Date::of(2026, 2, 9, 23, 59));
  EXPECT_EQ(Locale().parseDate("02/09/2026 23:59:58"), Date::of(2026, 2, 9, 23, 59, 58));
  for (const char* text : {"", "19.11.2026", "13/01/2026", "02/30/2026", "02/09/2026x", "02/09/2026 24:00",
                           "02/09/2026 13:00 PM", "02/09/2026 0:30 AM", "02/09/2026 8", "002/09/2026", "02/09/26"})
    EXPECT_FALSE(Locale().parseDate(text)) << text;
}

}  // namespace
}  // namespace tarnel
