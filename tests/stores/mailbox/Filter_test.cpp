#include "CalendarFixture.h"

namespace tarnel::mailbox {
namespace {

struct FilterTest : MailboxTest {
  FilterTest() {
    for (const char* subject : {"Rent", "gas", "o'clock", "say \"hi\""}) {
      auto task = aTask(*outlook_, subject);
      task->setTotalWork(10 * ++made_);
      if (made_ == 2) task->setStatus(outlook::TaskStatus::complete);
      if (made_ == 3) task->setDueDate(Date::of(2026, 12, 24));
      if (made_ == 4) task->UserProperties()->Add(linkName, outlook::PropertyType::text)->setValue("G-4");
      task->Save();
    }
  }

  std::string found(const std::string& filter) { return subjects(*itemsOf(*outlook_, tasksFolder)->Restrict(filter)); }
  std::string failure(const std::string& filter) {
    return failureOf([&] { itemsOf(*outlook_, tasksFolder)->Restrict(filter); });
  }

  std::shared_ptr<outlook::Application> outlook_ = loggedOn();
  int made_ = 0;
};

TEST_F(FilterTest, everyFormIsRead) {
  const std::string done = "gas", open = "Rent, o'clock, say \"hi\"";
  for (const char* filter :
       {"[Complete] = false", "[complete]=FALSE", "[Complete] = no", "[Complete] = 0", "[Complete] <> true",
        "not [Complete] = 'True'", "NOT (([Complete] = \"yes\"))", "[Status] <> 2", "[Status] < 2 OR [Status] > 2"})
    EXPECT_EQ(found(filter), open) << filter;
  EXPECT_EQ(found("[Complete] = -1"), done);
  EXPECT_EQ(found("[Subject] = 'RENT'"), "Rent");
  EXPECT_EQ(found("[Subject] = 'o''clock'"), "o'clock");
  EXPECT_EQ(found("[Subject] = \"o'clock\""), "o'clock");
  EXPECT_EQ(found("[Subject] = \"say \"\"hi\"\"\""), "say \"hi\"");
  EXPECT_EQ(found("[TotalWork] >= 20 AND [TotalWork] <= 30"), "gas, o'clock");
  EXPECT_EQ(found("[TotalWork] > 19.6 AND [TotalWork] < 30.4"), "gas, o'clock");
  EXPECT_EQ(found("[TotalWork] = 19.6"), "");
  EXPECT_EQ(found("[TotalWork] < 3000000000"), "Rent, gas, o'clock, say \"hi\"");
  EXPECT_EQ(found("[DueDate] < \"12/25/2026\""), "o'clock");
  EXPECT_EQ(found("[DueDate] = '12/24/2026 12:00 AM'"), "o'clock");
  EXPECT_EQ(found("[brackwelltarnelguid] = 'G-4'"), "say \"hi\"");
  EXPECT_EQ(found("[Subject] = ''"), "");
}

TEST_F(FilterTest, eachComparisonDiffersFromTheOthers) {
  const std::pair<const char*, const char*> cases[] = {{"=", "o'clock"},    {"<>", "Rent, gas, say \"hi\""},
                                                       {"<", "Rent, gas"},  {"<=", "Rent, gas, o'clock"},
                                                       {">", "say \"hi\""}, {">=", "o'clock, say \"hi\""}};
  for (const auto& [sign, expected] : cases) {
    EXPECT_EQ(found("[TotalWork] " + std::string(sign) + " 30"), expected) << sign;
    EXPECT_EQ(found("NOT NOT [TotalWork]" + std::string(sign) + "30"), expected) << sign;
  }
}

struct PropertyFilterTest : CalendarTest {};

TEST_F(PropertyFilterTest, everyPropertyIsItsOwn) {
  // One with values of its own in each property, beside one of defaults.
  import(
      "BEGIN:VTODO\r\nUID:1\r\nSUMMARY:Mine\r\nDESCRIPTION:Text\r\nPRIORITY:1\r\nCLASS:PRIVATE\r\nSTATUS:IN-PROCESS\r\n"
      "PERCENT-COMPLETE:40\r\nDUE;VALUE=DATE:20261201\r\nX-TARNEL-TOTAL-WORK:90\r\nX-TARNEL-ACTUAL-WORK:30\r\n"
      "BEGIN:VALARM\r\nEND:VALARM\r\nEND:VTODO\r\nBEGIN:VTODO\r\nUID:2\r\nSUMMARY:Other\r\n"
      "COMPLETED:20261103T120000Z\r\nEND:VTODO\r\n"
      "BEGIN:VEVENT\r\nUID:3\r\nSUMMARY:Mine\r\nLOCATION:Here\r\nDTSTART;VALUE=DATE:20261119\r\n"
      "RRULE:FREQ=DAILY;COUNT=2\r\nEND:VEVENT\r\nBEGIN:VEVENT\r\nUID:4\r\nSUMMARY:Other\r\n"
      "DTSTART:20261124T090000\r\nDTEND:20261124T094500\r\nEND:VEVENT\r\n");
  const auto found = [this](outlook::DefaultFolder folder, const std::string& filter) {
    return subjects(*itemsOf(*outlook_, folder)->Restrict(filter));
  };
  for (const char* filter :
       {"[Body] = 'text'", "[Importance] = 2", "[Sensitivity] = 2", "[Status] = 1", "[Complete] = no",
        "[PercentComplete] = 40", "[DateCompleted] <> '11/3/2026'", "[DueDate] = '12/1/2026'", "[TotalWork] = 90",
        "[ActualWork] = 30", "[ReminderSet] = yes"}) {
    EXPECT_EQ(found(tasksFolder, filter), "Mine") << filter;
    EXPECT_EQ(found(tasksFolder, "not " + std::string(filter)), "Other") << filter;
  }
  for (const char* filter : {"[Start] = '11/19/2026'", "[End] = '11/20/2026'", "[Duration] = 1440", "[Duration] <> 45",
                             "[Location] = 'HERE'", "[AllDayEvent] = true", "[IsRecurring] = true"}) {
    EXPECT_EQ(found(calendarFolder, filter), "Mine") << filter;
    EXPECT_EQ(found(calendarFolder, "not " + std::string(filter)), "Other") << filter;
  }
  auto other = itemsOf(*outlook_, tasksFolder)->Item(2);
  clock_.set(Date::of(2026, 11, 20, 10));
  other->setSubject("Changed");
  other->Save();
  EXPECT_EQ(found(tasksFolder, "[LastModificationTime] = '11/19/2026 8:30 AM'"), "Mine");
  EXPECT_EQ(found(tasksFolder, "[CreationTime] = '11/19/2026 8:30 AM'"), "Mine, Changed");
}

TEST_F(FilterTest, andBindsTighterThanOr) {
  EXPECT_EQ(found("[TotalWork] = 10 OR [TotalWork] = 20 AND [Complete] = false"), "Rent");
  EXPECT_EQ(found("([TotalWork] = 10 OR [TotalWork] = 20) AND [Complete] = false"), "Rent");
  EXPECT_EQ(found("[TotalWork] = 10 OR [TotalWork] = 20 AND [Complete] = true"), "Rent, gas");
  EXPECT_EQ(found("NOT [TotalWork] = 10 AND [TotalWork] < 40"), "gas, o'clock");
}

TEST_F(FilterTest, aRestrictionOfARestrictionNarrowsIt) {
  auto open = itemsOf(*outlook_, tasksFolder)->Restrict("[Complete] = false");
  auto one = open->Restrict("[TotalWork] > 10 OR [Subject] = 'Rent'")->Restrict("[TotalWork] < 40");
  EXPECT_EQ(one->Count(), 2);
  EXPECT_EQ(one->Item(2)->subject(), "o'clock");
  EXPECT_EQ(open->Count(), 3);
}

TEST_F(FilterTest, whatCannotBeReadFailsWithItsPlace) {
  EXPECT_TRUE(contains(failure(""), "440: The filter \"\" can't be used: at character 1 there should be a property"));
  EXPECT_TRUE(contains(failure("[Complete] = "), "character 14 there should be a value"));
  EXPECT_TRUE(contains(failure("[Complete] false"), "character 12 there should be a comparison"));
  EXPECT_TRUE(contains(failure("[Complete = false"), "closing bracket"));
  EXPECT_TRUE(contains(failure("([Complete] = false"), "closing parenthesis"));
  EXPECT_TRUE(contains(failure("[Subject] = 'abc"), "closing quotation mark"));
  EXPECT_TRUE(contains(failure("[Complete] = false [Status] = 1"), "character 20 there should be AND, OR or the end"));
  EXPECT_TRUE(contains(failure("[Complete] = false ANDY [Status] = 1"), "AND, OR or the end"));
  EXPECT_TRUE(contains(failure("[Nonsense] = 1"), "no property \"Nonsense\""));
  EXPECT_TRUE(contains(failure("[Complete] = maybe"), "[Complete] takes true or false"));
  EXPECT_TRUE(contains(failure("[Status] = 'x'"), "[Status] takes a number"));
  EXPECT_TRUE(contains(failure("[DueDate] = '2026-12-24'"), "takes a date"));
  EXPECT_TRUE(contains(failure("[DueDate] = '02/30/2026'"), "takes a date"));
  EXPECT_TRUE(contains(failure(std::string(5000, '(') + "[Status] = 1" + std::string(5000, ')')), "nested too deeply"));
  std::string longOne = "[Status] = 1";
  for (int i = 0; i < 5000; ++i) longOne += " OR [Status] = 1";
  EXPECT_TRUE(contains(failure(longOne), "too many comparisons"));
  EXPECT_EQ(found("[Subject] = '''; DROP TABLE items; --'"), "");
}

}  // namespace
}  // namespace tarnel::mailbox
