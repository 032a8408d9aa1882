#include "MailboxFixture.h"

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
  EXPECT_EQ(found("[DueDate] < \"12/25/2026\""), "o'clock");
  EXPECT_EQ(found("[DueDate] = '12/24/2026 12:00 AM'"), "o'clock");
  EXPECT_EQ(found("[brackwelltarnelguid] = 'G-4'"), "say \"hi\"");
  EXPECT_EQ(found("[Subject] = ''"), "");
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
