#include "SetTimeFormat.h"

#include <gtest/gtest.h>

#include "TestPlatform.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

class SetTimeFormatTest : public ::testing::Test {
 protected:
  void setDay(const std::string& hours, const std::string& start, const std::string& end) {
    session().theDateFormats[dateFormat::hoursInDay] = hours;
    session().theDateFormats[dateFormat::dayStart] = start;
    session().theDateFormats[dateFormat::dayEnd] = end;
  }
  test::TestPlatform platform_;
};

TEST_F(SetTimeFormatTest, readsAsTheWorkedValuesSay) {
  struct Case {
    double minutes;
    const char* fullDay;
    const char* workingDay;
  };
  for (const Case& c : {Case{0, "0:00", "0:00"},
                        {90, "1:30", "1:30"},
                        {-90, "1:30", "1:30"},
                        {480, "8:00", "8:00"},
                        {481, "8:01", "1D 0:01"},
                        {960, "16:00", "2 Days"},
                        {1440, "24:00", "3 Days"},
                        {1441, "1D 0:01", "3D 0:01"},
                        {1500, "1D 1:00", "3D 1:00"},
                        {2880, "2 Days", "6 Days"},
                        {3360, "2D 8:00", "7 Days"},
                        {3361, "2D 8:01", "1W 0D 0:01"},
                        {10080, "7 Days", "3 Weeks"},
                        {10081, "1W 0D 0:01", "3W 0D 0:01"},
                        {20160, "2 Weeks", "6 Weeks"}}) {
    setDay("24", "540", "1020");
    EXPECT_EQ(SetTimeFormat(c.minutes), c.fullDay) << c.minutes;
    setDay("8", "540", "1020");
    EXPECT_EQ(SetTimeFormat(c.minutes), c.workingDay) << c.minutes;
  }
}

TEST_F(SetTimeFormatTest, countsDaysOfTheWorkingDayAndWeeksOfFullDays) {
  setDay("8", "480", "1080");  // ten hours between the bounds, eight in a day
  EXPECT_EQ(SetTimeFormat(600), "10:00");
  EXPECT_EQ(SetTimeFormat(1200), "2 Days");
  EXPECT_EQ(SetTimeFormat(3361), "1W 0D 0:01");
}

TEST_F(SetTimeFormatTest, aFractionIsRoundedInItsMinutesOnly) {
  setDay("24", "0", "0");
  EXPECT_EQ(SetTimeFormat(90.5), "1:30");
  EXPECT_EQ(SetTimeFormat(91.5), "1:32");
  EXPECT_EQ(SetTimeFormat(1500.4), "1D 1:00");
  setDay("7.5", "480", "930");
  EXPECT_EQ(SetTimeFormat(451), "1D 0:01");
}

TEST_F(SetTimeFormatTest, aDayWithoutLengthFailsForAnyTimeButNone) {
  setDay("0", "480", "1080");
  EXPECT_EQ(SetTimeFormat(0), "0:00");
  EXPECT_EQ(SetTimeFormat(5), "");
  setDay("8", "480", "480");
  EXPECT_EQ(SetTimeFormat(5), "");
  setDay("eight", "480", "960");
  EXPECT_EQ(SetTimeFormat(5), "");
  ASSERT_EQ(platform_.errorReport.reports.size(), 3U);
  EXPECT_EQ(platform_.errorReport.reports[0].number, 11);
  EXPECT_EQ(platform_.errorReport.reports[1].number, 11);
  EXPECT_EQ(platform_.errorReport.reports[2].number, 13);
}

}  // namespace
}  // namespace tarnel
