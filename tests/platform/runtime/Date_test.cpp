#include "Date.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

TEST(Date, dayNumbersAreThoseOfTheirUsers) {
  EXPECT_EQ(Date::of(1899, 12, 30).days, 0);
  EXPECT_EQ(Date::of(1902, 9, 26).days, 1000);
  EXPECT_EQ(Date::of(2501, 1, 1).days, 219513);
  EXPECT_EQ(Date::of(2026, 11, 19, 6).days, 46345.25);
  EXPECT_EQ(Date::of(1899, 12, 29, 6).days, -1.25) << "the fraction counts forwards before day 0";
}

TEST(Date, everyMinuteOfADayComesBack) {
  for (int minute = 0; minute < 1440; ++minute) {
    const Date date = Date::of(2026, 11, 19, minute / 60, minute % 60);
    ASSERT_EQ(date.minuteOfDay(), minute);
    ASSERT_EQ(date.civil(), (CivilTime{2026, 11, 19, minute / 60, minute % 60, 0}));
  }
  const Date nearlyMidnight{46345.9999999999};
  EXPECT_EQ(isoText(nearlyMidnight), "2026-11-20 00:00:00") << "rounds to the next day's midnight";
  EXPECT_EQ(nearlyMidnight.wholeDay(), Date::of(2026, 11, 20));
  EXPECT_TRUE(nearlyMidnight.isMidnight());
  EXPECT_EQ(isoText(Date{-1.25}), "1899-12-29 06:00:00");
}

TEST(Date, minutesBetweenCountsBoundariesBothWays) {
  EXPECT_EQ(minutesBetween(Date::of(2026, 11, 19, 8, 0, 59), Date::of(2026, 11, 19, 8, 1, 0)), 1);
  EXPECT_EQ(minutesBetween(Date::of(2026, 11, 20), Date::of(2026, 11, 19, 23, 0)), -60);
  EXPECT_EQ(minutesBetween(Date::of(2024, 2, 28), Date::of(2024, 3, 1)), 2 * 1440);
}

TEST(Date, isoTextIsReadAndNothingElse) {
  EXPECT_EQ(parseIsoDate("2026-11-19T08:30:15"), Date::of(2026, 11, 19, 8, 30, 15));
  EXPECT_EQ(parseIsoDate("2024-02-29 23:59"), Date::of(2024, 2, 29, 23, 59));
  for (const char* text : {"", "2026-02-29", "2026-13-01", "2026-11-19 24:00", "2026-11-19 8:30", "2026/11/19",
                           "2026-11-19 08:30:60", "-026-11-19", "2026-11-19 ", "19.11.2026", "0026-11-19",
                           "2026-11-19 08:30:15.", "2026-11-19 08:30.5", "2026-11-19 08:30:15.5x", "2026-11-19Z",
                           "2026-11-19T08:30:15+1", "2026-11-19T08:30:15+24:00", "2026-11-19T08:30:15+01:00 "})
    EXPECT_FALSE(parseIsoDate(text)) << text;
}

TEST(Date, fractionsOfASecondAndPlacesElsewhereAreRead) {
  EXPECT_EQ(parseIsoDate("2026-11-19 08:30:15.999"), Date::of(2026, 11, 19, 8, 30, 15));
  EXPECT_EQ(parseIsoDate("2026-11-19T08:30:15,1234567"), Date::of(2026, 11, 19, 8, 30, 15));
  setenv("TZ", "XXX-2:30", 1);  // two hours and a half ahead of UTC
  tzset();
  for (const char* text : {"2026-11-19T08:30:15Z", "2026-11-19 08:30:15.5Z", "2026-11-19T10:30:15+02:00",
                           "2026-11-19T04:00:15-0430", "2026-11-19T09:30:15+01"})
    EXPECT_EQ(parseIsoDate(text), Date::of(2026, 11, 19, 11, 0, 15)) << text;
  EXPECT_EQ(parseIsoDate("2026-11-19T22:30Z"), Date::of(2026, 11, 20, 1));
  EXPECT_FALSE(parseIsoDate("9999-12-31T23:30Z")) << "on this machine's clocks it is past all dates";
  unsetenv("TZ");
  tzset();
}

}  // namespace
}  // namespace tarnel
