#include "SetTimeFormat.h"

#include <gtest/gtest.h>

#include "TestPlatform.h"

namespace tarnel::test {
namespace {

struct SetTimeFormatTest : testing::Test {
  void setDay(const std::string& hours, const std::string& start, const std::string& end) {
    session().theDateFormats[dateFormat::hoursInDay] = hours;
    session().theDateFormats[dateFormat::dayStart] = start;
    session().theDateFormats[dateFormat::dayEnd] = end;
  }
  TestPlatform platform_;
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

TEST_F(SetTimeFormatTest, daysAreWorkingDaysAndOneWithoutLengthFails) {
  const struct {
    const char* hours;
    const char* start;
    const char* end;
    double minutes;
    const char* told;
    std::int32_t failure = 0;
  } days[] = {{"8", "480", "1080", 600, "10:00"},  // ten hours between the bounds, eight in a day
              {"8", "480", "1080", 1200, "2 Days"},  {"8", "480", "1080", 3361, "1W 0D 0:01"},
              {"24", "0", "0", 90.5, "1:30"},  // a fraction is rounded in its minutes only
              {"24", "0", "0", 91.5, "1:32"},        {"24", "0", "0", 1500.4, "1D 1:00"},
              {"7.5", "480", "930", 451, "1D 0:01"}, {"0", "480", "1080", 0, "0:00"},
              {"0", "480", "1080", 5, "", 11},       {"8", "480", "480", 5, "", 11},
              {"eight", "480", "960", 5, "", 13}};
  auto& reports = platform_.errorReport.reports;
  for (const auto& day : days) {
    setDay(day.hours, day.start, day.end);
    reports.clear();
    EXPECT_EQ(SetTimeFormat(day.minutes), day.told) << day.hours << " " << day.minutes;
    EXPECT_EQ(reports.empty() ? 0 : reports.back().number, day.failure) << day.hours << " " << day.minutes;
    EXPECT_LE(reports.size(), 1U);
  }
}

}  // namespace
}  // namespace tarnel::test
