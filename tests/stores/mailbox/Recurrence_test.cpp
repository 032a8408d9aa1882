#include "Recurrence.h"

#include <libical/ical.h>

#include <random>
#include <sstream>

#include "CalendarFixture.h"
#include "IcalTime.h"
#include "Zone.h"

namespace tarnel::mailbox {
namespace {

const WallSeconds start = wallSecondsOf(Date::of(2016, 11, 15, 9, 30));  // a Tuesday

// libical's own walk from the first occurrence on, with no skipping.
std::vector<WallSeconds> walked(const std::string& rule, WallSeconds from, WallSeconds to) {
  std::vector<WallSeconds> starts;
  icalrecur_iterator* walk = icalrecur_iterator_new(icalrecurrencetype_from_string(rule.c_str()), icalTimeOf(start));
  for (auto time = icalrecur_iterator_next(walk); !icaltime_is_null_time(time); time = icalrecur_iterator_next(walk)) {
    if (wallSecondsOf(time) > to) break;
    if (wallSecondsOf(time) >= from) starts.push_back(wallSecondsOf(time));
  }
  icalrecur_iterator_free(walk);
  return starts;
}

void expectSameStarts(const std::string& rule, WallSeconds from, WallSeconds to) {
  const std::string lines = "RRULE:" + rule + "\n";
  const Recurrence recurrence(lines, start, false);
  const auto starts = recurrence.starts(from, to);
  EXPECT_EQ(starts, walked(rule, from, to)) << rule << " from " << isoText(dateOf(from));
  for (const WallSeconds at : starts) {
    EXPECT_TRUE(recurrence.weekdays() >> ((at / secondsPerDay + 6) % 7) & 1) << rule;
    EXPECT_TRUE(recurrence.monthDays() >> dateOf(at).civil().day & 1) << rule;
  }
}

TEST(RecurrenceTest, startsAreThoseOfAWalkFromTheBeginningWhereverTheSpanLies) {
  std::mt19937 random(7);
  std::istringstream rules(
      "FREQ=DAILY FREQ=DAILY;INTERVAL=3 FREQ=DAILY;INTERVAL=14;UNTIL=20270101T000000 FREQ=DAILY;BYDAY=MO,WE,SU "
      "FREQ=WEEKLY FREQ=WEEKLY;INTERVAL=2;BYDAY=SU,TU;WKST=SU FREQ=WEEKLY;INTERVAL=2;BYDAY=SU,TU;WKST=MO "
      "FREQ=WEEKLY;INTERVAL=5;BYDAY=SA,MO,FR FREQ=WEEKLY;BYDAY=TU;UNTIL=20261117T093000 FREQ=MONTHLY "
      "FREQ=MONTHLY;INTERVAL=5 FREQ=MONTHLY;BYDAY=2TU FREQ=MONTHLY;BYDAY=-1FR FREQ=MONTHLY;BYMONTHDAY=-1 "
      "FREQ=MONTHLY;BYMONTHDAY=31,15 FREQ=MONTHLY;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=-1 FREQ=YEARLY FREQ=YEARLY;INTERVAL=3 "
      "FREQ=YEARLY;BYMONTH=2,11;BYDAY=1TH FREQ=YEARLY;BYYEARDAY=100,-1 FREQ=HOURLY;INTERVAL=7 "
      "FREQ=HOURLY;INTERVAL=5;BYHOUR=9,10,15 FREQ=HOURLY;BYMINUTE=0,20 FREQ=HOURLY;INTERVAL=5;BYMINUTE=15;BYDAY=MO "
      "FREQ=DAILY;INTERVAL=3;BYMONTH=2,11 FREQ=WEEKLY;INTERVAL=3;BYMONTH=11,12 "
      "FREQ=MONTHLY;INTERVAL=5;BYDAY=2TU FREQ=YEARLY;INTERVAL=3;BYMONTH=2 FREQ=YEARLY;BYWEEKNO=20;BYDAY=MO");
  for (std::string rule; rules >> rule;)
    for (int round = 0; round < 6; ++round) {
      const WallSeconds from =
          start - secondsPerDay + std::uniform_int_distribution<WallSeconds>(0, 4100 * secondsPerDay)(random);
      expectSameStarts(rule, from, from + std::uniform_int_distribution<WallSeconds>(0, 60 * secondsPerDay)(random));
    }
}

TEST(RecurrenceTest, aRuleIsKeptWithTheEndThatItsCountLeadsTo) {
  EXPECT_EQ(normalizedRule("FREQ=WEEKLY;COUNT=3", start, false, Zone()), "FREQ=WEEKLY;UNTIL=20161129T093000");
  EXPECT_EQ(normalizedRule("FREQ=DAILY;UNTIL=20161118T083000Z", start, false, Zone::utc()),
            "FREQ=DAILY;UNTIL=20161118T083000");
  EXPECT_EQ(normalizedRule("FREQ=DAILY;UNTIL=20161118", start, false, Zone()), "FREQ=DAILY;UNTIL=20161118T235959");
  for (const char* bad : {"", "FREQ=SOMETIMES", "INTERVAL=2", "FREQ=SECONDLY", "FREQ=DAILY;UNTIL=20100101T000000",
                          "FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30"})
    EXPECT_FALSE(normalizedRule(bad, start, false, Zone())) << bad;
}

constexpr const char* standup =
    "BEGIN:VEVENT\r\nUID:standup\r\nDTSTART:20161117T090000\r\nDTEND:20161117T093000\r\nRRULE:FREQ=WEEKLY\r\n"
    "EXDATE:20261126T090000\r\nSUMMARY:Standup\r\nLOCATION:Room 1\r\nEND:VEVENT\r\n"
    "BEGIN:VEVENT\r\nUID:standup\r\nRECURRENCE-ID:20261119T090000\r\nDTSTART:20261120T100000\r\n"
    "DTEND:20261120T103000\r\nSUMMARY:Standup, moved\r\nEND:VEVENT\r\n";

class SeriesTest : public CalendarTest {};

TEST_F(SeriesTest, aDayShowsItsOccurrencesWithExceptionsAndWithoutDeletedOnes) {
  ASSERT_EQ(import(standup).added, 2);
  anAppointment(*outlook_, "Single", Date::of(2026, 11, 12, 8), 60);
  EXPECT_EQ(day(Date::of(2026, 11, 12)), "08:00-09:00 Single; 09:00-09:30 Standup");
  EXPECT_EQ(day(Date::of(2026, 11, 19)), "");
  EXPECT_EQ(day(Date::of(2026, 11, 20)), "10:00-10:30 Standup, moved");
  EXPECT_EQ(day(Date::of(2026, 11, 26)), "");
  EXPECT_EQ(day(Date::of(2036, 11, 20)), "09:00-09:30 Standup");
  EXPECT_EQ(day(Date::of(2016, 11, 10)), "");
  auto moved = occurrenceOn(Date::of(2026, 11, 20));
  EXPECT_TRUE(moved->IsRecurring());
  EXPECT_EQ(outlook_->Session()->GetItemFromID(moved->EntryID(), "")->subject(), "Standup, moved");

  // Without recurrences there is the series alone.
  EXPECT_EQ(subjects(*itemsOf(*outlook_, calendarFolder)), "Standup, Single");
  auto there = daysItems(Date::of(2026, 11, 12))->Restrict("NOT ([Location] = 'Room 1')");
  EXPECT_EQ(subjects(*there), "Single");
  EXPECT_EQ(daysItems(Date::of(2026, 11, 12))->Restrict("[IsRecurring] = true")->Count(), 1);
}

TEST_F(SeriesTest, savedOccurrenceIsAnExceptionAndADeletedOneGoesAlone) {
  import(standup);
  auto occurrence = occurrenceOn(Date::of(2026, 12, 3));
  const std::string id = occurrence->EntryID();
  occurrence->Save();
  EXPECT_EQ(listItems(*openMailbox()).size(), 2u);
  occurrence->setStart(Date::of(2026, 12, 3, 15));
  occurrence->setSubject("Later");
  occurrence->UserProperties()->Add(linkName, outlook::PropertyType::text)->setValue("G");
  occurrence->Save();
  EXPECT_EQ(day(Date::of(2026, 12, 3)), "15:00-15:30 Later");
  EXPECT_EQ(day(Date::of(2026, 12, 10)), "09:00-09:30 Standup");
  auto again = outlook_->Session()->GetItemFromID(id, "");
  EXPECT_EQ(again->subject(), "Later");
  EXPECT_EQ(again->UserProperties()->Item(linkName)->Value(), Variant("G"));

  again->Delete();
  occurrenceOn(Date::of(2026, 12, 10))->Delete();
  EXPECT_EQ(day(Date::of(2026, 12, 3)), "");
  EXPECT_EQ(day(Date::of(2026, 12, 10)), "");
  EXPECT_EQ(day(Date::of(2026, 12, 17)), "09:00-09:30 Standup");
  EXPECT_TRUE(contains(failureOf([&] { outlook_->Session()->GetItemFromID(id, ""); }), "440"));
  EXPECT_TRUE(contains(failureOf([&] { occurrence->Save(); }), "moved or deleted"));
  auto series = std::dynamic_pointer_cast<outlook::AppointmentItem>(itemsOf(*outlook_, calendarFolder)->Item(1));
  EXPECT_TRUE(contains(failureOf([&] { series->setDuration(5); }), "Set those of an occurrence"));
  series->Delete();
  EXPECT_EQ(day(Date::of(2026, 11, 20)), "");
  EXPECT_EQ(itemsOf(*outlook_, deletedFolder)->Count(), 1);
}

TEST_F(SeriesTest, aSeriesKeepsTheWallTimeOfItsOwnZone) {
  const auto report = import(
      "BEGIN:VTIMEZONE\r\nTZID:Eastern\r\nBEGIN:STANDARD\r\nDTSTART:20071104T020000\r\n"
      "RRULE:FREQ=YEARLY;BYMONTH=11;BYDAY=1SU\r\nTZOFFSETFROM:-0400\r\nTZOFFSETTO:-0500\r\nEND:STANDARD\r\n"
      "BEGIN:DAYLIGHT\r\nDTSTART:20070311T020000\r\nRRULE:FREQ=YEARLY;BYMONTH=3;BYDAY=2SU\r\n"
      "TZOFFSETFROM:-0500\r\nTZOFFSETTO:-0400\r\nEND:DAYLIGHT\r\nEND:VTIMEZONE\r\n"
      "BEGIN:VEVENT\r\nUID:call\r\nDTSTART;TZID=Eastern:20260902T090000\r\nDURATION:PT1H\r\n"
      "RRULE:FREQ=WEEKLY;UNTIL=20261111T140000Z\r\nEXDATE;TZID=Eastern:20261007T090000\r\n"
      "EXDATE:20261014T130000Z\r\nSUMMARY:Call\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:late\r\nDTSTART;TZID=Eastern:20261028T220000\r\nDTEND;TZID=Eastern:20261028T230000\r\n"
      "RRULE:FREQ=WEEKLY\r\nSUMMARY:Late\r\nEND:VEVENT\r\n");
  EXPECT_EQ(report.added, 2);
  EXPECT_EQ(day(Date::of(2026, 10, 21)), "15:00-16:00 Call");
  EXPECT_EQ(day(Date::of(2026, 10, 28)), "14:00-15:00 Call");  // Europe has put its clocks back, America hasn't
  EXPECT_EQ(day(Date::of(2026, 11, 4)), "15:00-16:00 Call");
  EXPECT_EQ(day(Date::of(2026, 11, 11)), "15:00-16:00 Call");
  EXPECT_EQ(day(Date::of(2026, 11, 18)), "");
  EXPECT_EQ(day(Date::of(2026, 10, 7)) + day(Date::of(2026, 10, 14)), "");
  EXPECT_EQ(day(Date::of(2026, 11, 5)), "04:00-05:00 Late");  // Wednesday evening there is Thursday here
}

TEST_F(SeriesTest, daysAndLongOccurrencesAreFoundOnEachDayThatTheyTouch) {
  import(
      "BEGIN:VEVENT\r\nUID:days\r\nDTSTART;VALUE=DATE:20260131\r\nDTEND;VALUE=DATE:20260203\r\n"
      "RRULE:FREQ=YEARLY\r\nSUMMARY:Fair\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:night\r\nDTSTART:20261023T220000\r\nDTEND:20261024T060000\r\n"
      "RRULE:FREQ=WEEKLY;COUNT=2\r\nSUMMARY:Night\r\nEND:VEVENT\r\n");
  EXPECT_EQ(day(Date::of(2027, 1, 30)), "");
  for (const Date date : {Date::of(2027, 1, 31), Date::of(2027, 2, 1), Date::of(2027, 2, 2)})
    EXPECT_EQ(day(date), "00:00-00:00 Fair");
  EXPECT_EQ(day(Date::of(2027, 2, 3)), "");
  EXPECT_EQ(day(Date::of(2026, 10, 30)), "22:00-06:00 Night");
  EXPECT_EQ(day(Date::of(2026, 10, 31)), "22:00-06:00 Night");
  EXPECT_EQ(day(Date::of(2026, 11, 6)), "");
}

TEST_F(SeriesTest, withoutARuleItTakesPlaceAtItsStartToo) {
  import(
      "BEGIN:VEVENT\r\nUID:two\r\nDTSTART:20261119T090000\r\nDURATION:PT1H\r\nRDATE:20261214T090000\r\n"
      "SUMMARY:Two\r\nEND:VEVENT\r\n");
  EXPECT_EQ(day(Date::of(2026, 11, 19)) + ", " + day(Date::of(2026, 12, 14)), "09:00-10:00 Two, 09:00-10:00 Two");
}

TEST_F(SeriesTest, exceptionsFindTheirSeriesWheneverAndWhereverItIs) {
  const std::string moved =
      "BEGIN:VEVENT\r\nUID:call\r\nRECURRENCE-ID:20261119T090000\r\nDTSTART:20261119T110000\r\nDURATION:PT1H\r\n"
      "SUMMARY:Moved\r\nEND:VEVENT\r\n";
  const std::string series =
      "BEGIN:VEVENT\r\nUID:call\r\nDTSTART:20261112T090000\r\nDURATION:PT1H\r\nRRULE:FREQ=WEEKLY\r\n"
      "SUMMARY:Call\r\nEND:VEVENT\r\n";
  EXPECT_EQ(import(moved).added, 1);
  EXPECT_EQ(day(Date::of(2026, 11, 19)), "11:00-12:00 Moved") << "on its own until its series comes";
  EXPECT_EQ(import(series).added, 1);
  EXPECT_EQ(day(Date::of(2026, 11, 19)), "11:00-12:00 Moved");
  EXPECT_EQ(day(Date::of(2026, 11, 26)), "09:00-10:00 Call");
  EXPECT_EQ(import(moved).unchanged, 1);
  itemsOf(*outlook_, calendarFolder)->Item(1)->Delete();
  std::string later = moved;
  for (std::size_t at = 0; (at = later.find("1119T", at)) != std::string::npos;) later.replace(at, 4, "1126");
  EXPECT_EQ(import(later).added, 1);
  EXPECT_EQ(day(Date::of(2026, 11, 26)), "") << "it lies where its series lies";
}

TEST(ZoneTest, wallTimesFollowTheClockChangesOfTheirZone) {
  const Zone zone = *Zone::of("America/New_York", "");
  const auto unixOf = [](int month, int dayOfMonth, int hour, int minute) {
    return wallSecondsOf(Date::of(2026, month, dayOfMonth, hour, minute)) - wallSecondsOf(Date::of(1970, 1, 1));
  };
  const struct {
    Date utc, wall;
  } moments[] = {{Date::of(2026, 3, 8, 6, 59), Date::of(2026, 3, 8, 1, 59)},
                 {Date::of(2026, 3, 8, 7, 0), Date::of(2026, 3, 8, 3, 0)},
                 {Date::of(2026, 11, 1, 5, 59), Date::of(2026, 11, 1, 1, 59)},
                 {Date::of(2026, 11, 1, 6, 0), Date::of(2026, 11, 1, 1, 0)},
                 {Date::of(2026, 11, 1, 7, 0), Date::of(2026, 11, 1, 2, 0)}};
  for (const auto& each : moments) {
    const CivilTime utc = each.utc.civil();
    EXPECT_EQ(isoText(dateOf(zone.wallOf(unixOf(utc.month, utc.day, utc.hour, utc.minute)))), isoText(each.wall));
  }
  EXPECT_EQ(zone.unixSecondsOf(wallSecondsOf(Date::of(2026, 3, 8, 1, 59))), unixOf(3, 8, 6, 59));
  EXPECT_EQ(zone.unixSecondsOf(wallSecondsOf(Date::of(2026, 3, 8, 3, 0))), unixOf(3, 8, 7, 0));
  EXPECT_EQ(zone.unixSecondsOf(wallSecondsOf(Date::of(2026, 11, 1, 2, 0))), unixOf(11, 1, 7, 0));
  EXPECT_EQ(Zone::utc().wallOf(0), wallSecondsOf(Date::of(1970, 1, 1)));
  EXPECT_FALSE(Zone::of("Nowhere", ""));
  EXPECT_FALSE(Zone::of("Mine", "BEGIN:VEVENT\r\nEND:VEVENT\r\n"));
}

TEST(RecurrenceTest, furtherDatesCountOnceAndWithinTheSpanAlone) {
  const auto at = [](int dayOfMonth) { return start + (dayOfMonth - 15) * secondsPerDay; };
  const Recurrence recurrence(
      "RRULE:FREQ=DAILY;UNTIL=20161118T093000\nRDATE:20161117T093000\nRDATE:20161120T093000\nRDATE:20161125T093000\n",
      start, false);
  EXPECT_EQ(recurrence.starts(at(17), at(20)), (std::vector<WallSeconds>{at(17), at(18), at(20)}));
  EXPECT_EQ(recurrence.starts(at(21), at(25)), std::vector<WallSeconds>{at(25)});
  EXPECT_EQ(recurrence.starts(at(21), at(25) - 1), std::vector<WallSeconds>{});
}

TEST_F(SeriesTest, anExceptionMayNameItsDayOrAMomentOfIt) {
  import(
      "BEGIN:VEVENT\r\nUID:call\r\nDTSTART:20261112T090000\r\nDURATION:PT1H\r\nRRULE:FREQ=WEEKLY\r\n"
      "SUMMARY:Call\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:call\r\nRECURRENCE-ID;VALUE=DATE:20261119\r\nDTSTART:20261119T110000\r\n"
      "DURATION:PT1H\r\nSUMMARY:Later\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:day\r\nDTSTART;VALUE=DATE:20261113\r\nRRULE:FREQ=WEEKLY\r\nSUMMARY:Day\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:day\r\nRECURRENCE-ID:20261120T100000\r\nDTSTART;VALUE=DATE:20261120\r\nSUMMARY:Other\r\n"
      "END:VEVENT\r\n");
  EXPECT_EQ(day(Date::of(2026, 11, 19)), "11:00-12:00 Later");
  EXPECT_EQ(day(Date::of(2026, 11, 20)), "00:00-00:00 Other");
}

TEST_F(SeriesTest, filtersOfEveryFormFindTheOccurrencesThatMeetThem) {
  import(
      "BEGIN:VEVENT\r\nUID:daily\r\nDTSTART:20261101T090000\r\nDTEND:20261101T100000\r\n"
      "RRULE:FREQ=DAILY;COUNT=30\r\nEND:VEVENT\r\n");
  auto items = itemsOf(*outlook_, calendarFolder);
  items->Sort("[Start]");
  items->setIncludeRecurrences(true);
  const std::string late = "'11/28/2026 9:00 AM'", early = "'11/3/2026 9:00 AM'", end = "'11/3/2026 10:00 AM'";
  const std::pair<std::string, const char*> cases[] = {
      {"[Start] = " + early, "3 "},
      {"[Start] < " + early, "1 2 "},
      {"[Start] <= " + early, "1 2 3 "},
      {"[Start] > " + late, "29 30 "},
      {"[Start] >= " + late, "28 29 30 "},
      {"[End] <= " + end, "1 2 3 "},
      {"[End] < " + end, "1 2 "},
      {"NOT [Start] > " + early, "1 2 3 "},
      {"NOT [Start] >= " + early, "1 2 "},
      {"NOT [Start] < " + late, "28 29 30 "},
      {"NOT [Start] <= " + late, "29 30 "},
      {"NOT [Start] <> " + late, "28 "},
      {"NOT [Start] = " + late + " AND [Start] > '11/27/2026'", "27 29 30 "},
      {"[Start] < " + early + " OR [Start] > " + late, "1 2 29 30 "},
      {"[Start] = " + early + " OR [Start] = " + late, "3 28 "},
      {"NOT ([Start] < " + late + " OR [End] > '11/29/2026 10:00 AM')", "28 29 "},
      {"NOT ([Start] >= " + early + " AND [Start] <= " + late + ")", "1 2 29 30 "},
      {"[Subject] = '' AND [Start] < " + early, "1 2 "},
      {"[Start] > " + early + " AND [Start] < " + late + " AND [End] < '11/5/2026'", "4 "},
  };
  for (const auto& [filter, expected] : cases) {
    std::string days;
    auto some = items->Restrict(filter);
    for (auto item = some->GetFirst(); item; item = some->GetNext())
      days += std::to_string(outlook::asAppointment(item)->Start().civil().day) + " ";
    EXPECT_EQ(days, expected) << filter;
  }
}

TEST_F(SeriesTest, anOpenSpanStaysFinite) {
  import(standup);
  auto items = itemsOf(*outlook_, calendarFolder);
  items->Sort("[Start]");
  items->setIncludeRecurrences(true);
  // A year to either side of today, and the exception.
  EXPECT_NEAR(items->Count(), 104, 2);
  EXPECT_NEAR(items->Restrict("[Start] >= '11/19/2026'")->Count(), 52, 2);
}

}  // namespace
}  // namespace tarnel::mailbox
