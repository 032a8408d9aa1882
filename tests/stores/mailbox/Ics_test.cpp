#include <algorithm>

#include "CalendarFixture.h"
#include "IcsLines.h"

namespace tarnel::mailbox {
namespace {

struct IcsTest : CalendarTest {
  // All that `list` shows but the ids, one item a line.
  static std::string described(Mailbox& mailbox) {
    std::string text;
    for (const ListedItem& item : listItems(mailbox)) {
      text +=
          item.folder + "|" + item.subject + "|" + item.body + "|" + std::to_string(static_cast<int>(item.importance));
      if (item.status) text += "|status " + std::to_string(static_cast<int>(*item.status));
      if (item.dueDate) text += "|due " + isoText(*item.dueDate);
      if (item.totalWork) text += "|" + std::to_string(*item.totalWork) + "/" + std::to_string(*item.actualWork);
      if (item.start) text += "|" + isoText(*item.start) + " to " + isoText(*item.end) + "|" + *item.location;
      if (item.allDay.value_or(false)) text += "|all day";
      if (item.recurring.value_or(false)) text += "|recurring";
      for (const auto& [name, value] : item.userProperties) text += "|" + name + "=" + value;
      text += "\n";
    }
    return text;
  }

  static std::vector<std::string> sortedLines(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    std::sort(lines.begin(), lines.end());
    return lines;
  }

  // "added updated unchanged ", then what was skipped, a line each.
  static std::string told(const ImportReport& report) {
    std::string text;
    for (const auto count : {report.added, report.updated, report.unchanged}) text += std::to_string(count) + " ";
    for (const std::string& line : report.skipped) text += line + "\n";
    return text;
  }
  std::unique_ptr<Mailbox> newMailbox(const char* name) {
    createMailbox(folder_ / name);
    return std::make_unique<Mailbox>(folder_ / name, Locale(), clock_);
  }

  const std::string everything_ =
      "BEGIN:VTODO\r\nUID:rent\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:Pay rent\\, gas\\; all\r\nDESCRIPTION:Line one\\N"
      "Line\r\n  two\r\nPRIORITY:3\r\nSTATUS:NEEDS-ACTION\r\nX-TARNEL-STATUS:WAITING\r\nDUE:20261201T220000Z\r\n"
      "CATEGORIES:Home,Money\r\nX-TARNEL-TOTAL-WORK:90\r\nX-TARNEL-ACTUAL-WORK:30\r\n"
      "X-TARNEL-USER-PROPERTY;X-NAME=BrackwellTarnelGUID:G-1\r\nX-OTHER;X-P=\"a;b:c\":kept as it is\r\n"
      "BEGIN:VALARM\r\nACTION:DISPLAY\r\nTRIGGER:-PT5M\r\nDESCRIPTION:x\r\nEND:VALARM\r\nEND:VTODO\r\n"
      "BEGIN:VTODO\r\nUID:done\r\nSUMMARY:Done\r\nCOMPLETED:20261105T120000Z\r\nEND:VTODO\r\n"
      "BEGIN:VEVENT\r\nUID:utc\r\nDTSTART:20261119T080000Z\r\nDTEND:20261119T083000Z\r\nSUMMARY:Dentist\r\n"
      "LOCATION:\r\nCLASS:PRIVATE\r\nGEO:37.4;-122.1\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:day\r\nDTSTART;VALUE=DATE:20261119\r\nSUMMARY:Holiday\r\nLOCATION:Rome\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:series\r\nRECURRENCE-ID:20261126T080000Z\r\nDTSTART:20261126T100000Z\r\n"
      "DTEND:20261126T110000Z\r\nSUMMARY:Moved\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:series\r\nDTSTART:20261112T080000Z\r\nDURATION:PT1H\r\nRRULE:FREQ=WEEKLY;COUNT=5\r\n"
      "EXDATE:20261119T080000Z\r\nRDATE:20261214T080000Z\r\nSUMMARY:Class\r\nEND:VEVENT\r\n"
      "BEGIN:VEVENT\r\nUID:series\r\nRECURRENCE-ID:20261203T080000Z\r\nDTSTART:20261203T080000Z\r\n"
      "STATUS:CANCELLED\r\nSUMMARY:Off\r\nEND:VEVENT\r\n";
};

TEST_F(IcsTest, componentsBecomeItemsInLocalWallTime) {
  EXPECT_EQ(told(import(everything_)), "6 1 0 ") << "the cancelled occurrence changes its series";
  EXPECT_EQ(described(*openMailbox()),
            "Tasks|Pay rent, gas; all|Line one\r\nLine two|2|status 3|due 2026-12-01 00:00:00|90/30|"
            "BrackwellTarnelGUID=G-1\n"
            "Tasks|Done||1|status 2|0/0\n"
            "Calendar|Dentist||1|2026-11-19 09:00:00 to 2026-11-19 09:30:00|\n"
            "Calendar|Holiday||1|2026-11-19 00:00:00 to 2026-11-20 00:00:00|Rome|all day\n"
            "Calendar|Class||1|2026-11-12 09:00:00 to 2026-11-12 10:00:00||recurring\n"
            "Calendar|Moved||1|2026-11-26 11:00:00 to 2026-11-26 12:00:00||recurring\n");
  EXPECT_EQ(day(Date::of(2026, 11, 26)), "11:00-12:00 Moved");
  EXPECT_EQ(day(Date::of(2026, 12, 3)), "");
  EXPECT_EQ(day(Date::of(2026, 12, 10)), "09:00-10:00 Class");
  EXPECT_EQ(day(Date::of(2026, 12, 14)), "09:00-10:00 Class");
  EXPECT_EQ(day(Date::of(2026, 12, 17)), "");
}

// "status importance percent done due class work".
std::string taskFields(const ItemRecord& task) {
  const auto day = [](WallSeconds at) { return at == noDate ? "-" : isoText(dateOf(at)).substr(0, 10); };
  std::string text = std::to_string(static_cast<int>(task.status));
  for (const std::int64_t number : {task.importance, task.percentComplete}) text += " " + std::to_string(number);
  text += " " + day(task.dateCompleted) + " " + day(task.dueDate);
  for (const std::int64_t number : {task.sensitivity, task.totalWork, task.actualWork})
    text += " " + std::to_string(number);
  return text;
}

TEST_F(IcsTest, eachPropertyOfATaskIsReadAndWrittenBack) {
  const std::pair<const char*, const char*> cases[] = {
      {"STATUS:NEEDS-ACTION|PRIORITY:0|CLASS:PUBLIC", "0 1 0 - - 0 0 0"},
      {"STATUS:in-process|PERCENT-COMPLETE:1|PRIORITY:1|CLASS:private", "1 2 1 - - 2 0 0"},
      {"STATUS:COMPLETED|PRIORITY:4|CLASS:CONFIDENTIAL", "2 2 100 2026-11-19 - 3 0 0"},
      {"STATUS:CANCELLED|PRIORITY:5|CLASS:X-ANY", "2 1 100 2026-11-19 - 2 0 0"},
      {"STATUS:NEEDS-ACTION|X-TARNEL-STATUS:WAITING|PRIORITY:6|X-TARNEL-TOTAL-WORK:1", "3 0 0 - - 0 1 0"},
      {"STATUS:IN-PROCESS|X-TARNEL-STATUS:OTHER|PRIORITY:9|X-TARNEL-ACTUAL-WORK:1", "1 0 0 - - 0 0 1"},
      {"PERCENT-COMPLETE:100", "2 1 100 2026-11-19 - 0 0 0"},
      {"PERCENT-COMPLETE:99", "0 1 0 - - 0 0 0"},
      {"COMPLETED:20261105T233000Z", "2 1 100 2026-11-06 - 0 0 0"},
      {"STATUS:NEEDS-ACTION|COMPLETED:20261105T120000Z|PERCENT-COMPLETE:100", "0 1 0 - - 0 0 0"},
      {"DTSTART:20261119T233000Z|DURATION:P2D", "0 1 0 - 2026-11-22 0 0 0"},
      {"DTSTART;VALUE=DATE:20261119|DURATION:P2D|DUE:20261201T233000Z", "0 1 0 - 2026-12-02 0 0 0"},
      {"DURATION:P2D", "0 1 0 - - 0 0 0"},
      {"DTSTART;VALUE=DATE:20261119|DURATION:P100000D", "0 1 0 - 2300-09-04 0 0 0"},
  };
  std::string components, expected;
  for (const auto& [lines, fields] : cases) {
    components += "BEGIN:VTODO|UID:" + std::to_string(components.size()) + "|" + lines + "|END:VTODO|";
    expected += std::string(fields) + "\n";
  }
  for (std::size_t at = 0; (at = components.find('|', at)) != std::string::npos;) components.replace(at, 1, "\r\n");
  EXPECT_EQ(told(import(components)), std::to_string(std::size(cases)) + " 0 0 ");
  const auto fieldsIn = [&](Mailbox& mailbox) {
    std::string text;
    for (std::size_t i = 1; i <= std::size(cases); ++i)
      text += taskFields(*findItem(mailbox.store, static_cast<std::int64_t>(i))) + "\n";
    return text;
  };
  auto mine = openMailbox();
  EXPECT_EQ(fieldsIn(*mine), expected);
  const auto other = newMailbox("other");
  clock_.set(Date::of(2026, 11, 30));  // a day of completion is kept, not taken again
  importIcsText(*other, exportIcsText(*mine), "export");
  EXPECT_EQ(fieldsIn(*other), expected);
}

TEST_F(IcsTest, importingAgainChangesNothingAndANewerFileUpdates) {
  import(everything_);
  deleteItem(*openMailbox(), occurrenceOn(Date::of(2026, 12, 10))->EntryID());
  const std::string before = exportIcsText(*openMailbox());
  EXPECT_EQ(told(import(everything_)), "0 0 7 ");
  EXPECT_EQ(exportIcsText(*openMailbox()), before);
  EXPECT_EQ(day(Date::of(2026, 12, 10)), "");

  const std::string newer = "BEGIN:VTODO\r\nUID:done\r\nSUMMARY:Open again\r\nSTATUS:NEEDS-ACTION\r\nEND:VTODO\r\n";
  EXPECT_EQ(told(import(newer)), "0 1 0 ");
  EXPECT_TRUE(contains(described(*openMailbox()), "Tasks|Open again||1|status 0|0/0\n"));
  const std::string linked = "BEGIN:VTODO\r\nUID:done\r\nSUMMARY:Open again\r\nX-TARNEL-USER-PROPERTY;X-NAME=Link:";
  for (const char* value : {"first", "second"})
    EXPECT_EQ(told(import(linked + value + "\r\nEND:VTODO\r\n")), "0 1 0 ") << value;
  EXPECT_TRUE(contains(described(*openMailbox()), "Tasks|Open again||1|status 0|0/0|Link=second\n"));
}

TEST_F(IcsTest, anExportCarriesEverythingToAnotherMailbox) {
  import(everything_);
  anAppointment(*outlook_, "Own, with \xC3\xA4 umlauts " + std::string(90, 'x') + " \xE2\x82\xAC",
                Date::of(2026, 11, 20, 8), 45);
  auto mine = openMailbox();
  const auto file = folder_ / "all.ics";
  EXPECT_EQ(exportIcs(*mine, file), 7);
  const std::string text = test::contentsOf(file);
  const auto other = newMailbox("other");
  EXPECT_EQ(told(importIcs(*other, file)), "7 0 0 ");
  EXPECT_EQ(sortedLines(described(*other)), sortedLines(described(*mine)));
  EXPECT_EQ(exportIcsText(*other), text);
  EXPECT_EQ(told(importIcs(*mine, file)), "0 0 7 ");

  for (const char* kept :
       {"CATEGORIES:Home,Money\r\n", "X-OTHER;X-P=\"a;b:c\":kept as it is\r\n", "GEO:37.4;-122.1\r\n",
        "BEGIN:VALARM\r\nACTION:DISPLAY\r\n", "EXDATE:20261203T080000Z\r\n", "RECURRENCE-ID:20261126T080000Z\r\n"})
    EXPECT_TRUE(contains(text, kept));
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find("\r\n", at);
    ASSERT_NE(end, std::string::npos);
    EXPECT_LE(end - at, 75u);
    EXPECT_TRUE(isUtf8(text.substr(at, end - at)));
    at = end + 2;
  }
}

TEST_F(IcsTest, seriesOfTheMachinesZoneTravelsWithItsZone) {
  setZone("Europe/Berlin");
  import(
      "BEGIN:VEVENT\r\nUID:own\r\nDTSTART:20261001T090000\r\nDTEND:20261001T100000\r\n"
      "RRULE:FREQ=WEEKLY;COUNT=8\r\nEXDATE:20261015T090000\r\nSUMMARY:Own\r\nEND:VEVENT\r\n");
  auto mailbox = openMailbox();
  const std::string text = exportIcsText(*mailbox);
  for (const char* part :
       {"BEGIN:VTIMEZONE\r\nTZID:Europe/Berlin\r\n", "DTSTART;TZID=\"Europe/Berlin\":20261001T090000",
        "UNTIL=20261119T080000Z", "EXDATE;TZID=\"Europe/Berlin\":20261015T090000"})
    EXPECT_TRUE(contains(text, part));
  EXPECT_EQ(importIcsText(*mailbox, text, "again").unchanged, 1);
  setZone("America/New_York");
  const auto abroad = newMailbox("abroad");
  importIcsText(*abroad, text, "abroad");
  EXPECT_EQ(isoText(*listItems(*abroad)[0].start), "2026-10-01 03:00:00");
}

TEST_F(IcsTest, zonesThatShareANameAreExportedUnderTwo) {
  for (const std::string hours : {"02", "05"})
    import("BEGIN:VTIMEZONE\r\nTZID:Mine\r\nBEGIN:STANDARD\r\nDTSTART:20000101T000000\r\nTZOFFSETFROM:+" + hours +
           "00\r\nTZOFFSETTO:+" + hours + "00\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\nBEGIN:VEVENT\r\nUID:" + hours +
           "\r\nDTSTART;TZID=Mine:20261119T120000\r\nRRULE:FREQ=DAILY\r\nEND:VEVENT\r\n");
  const auto other = newMailbox("other");
  importIcsText(*other, exportIcsText(*openMailbox()), "export");
  EXPECT_EQ(described(*other), described(*openMailbox()));
  EXPECT_EQ(isoText(*listItems(*other)[1].start), "2026-11-19 08:00:00");
}

TEST_F(IcsTest, aBadComponentIsToldByLineAndTheRestIsTaken) {
  const ImportReport report = import(
      "BEGIN:VEVENT\r\nUID:1\r\nDTSTART:20260230T080000\r\nEND:VEVENT\r\n"                           // 4: DTSTART on 6
      "BEGIN:VEVENT\r\nUID:2\r\nSUMMARY:no start\r\nEND:VEVENT\r\n"                                  // 8
      "BEGIN:VEVENT\r\nUID:3\r\nDTSTART:20260101T080000\r\nRRULE:FREQ=NEVER\r\nEND:VEVENT\r\n"       // 12: 15
      "BEGIN:VTODO\r\nSUMMARY:no uid\r\nEND:VTODO\r\n"                                               // 17
      "BEGIN:VEVENT\r\nUID:4\r\nDTSTART;TZID=Nowhere:20260101T080000\r\nEND:VEVENT\r\n"              // 20: 22
      "BEGIN:VEVENT\r\nUID:5\r\nDTSTART:20260102T080000\r\nDTEND:20260101T080000\r\nEND:VEVENT\r\n"  // 24
      "BEGIN:VTODO\r\nUID:6\r\nnonsense without a colon\r\nEND:VTODO\r\n"                            // 29: 31
      "BEGIN:VJOURNAL\r\nUID:7\r\nEND:VJOURNAL\r\n"                                                  // 33
      "BEGIN:VTODO\r\nUID:8\r\nSUMMARY:caf\xE9\r\nEND:VTODO\r\n"                                     // 36: 38
      "BEGIN:VTODO\r\nUID:good\r\nSUMMARY:good\r\nEND:VTODO\r\n"
      "BEGIN:VTODO\r\nUID:9\r\nPRIORITY:10\r\nEND:VTODO\r\n"                                                  // 44: 46
      "BEGIN:VTODO\r\nUID:10\r\nPERCENT-COMPLETE:101\r\nEND:VTODO\r\n"                                        // 48: 50
      "BEGIN:VTODO\r\nUID:11\r\nX-TARNEL-TOTAL-WORK:1h\r\nEND:VTODO\r\n"                                      // 52: 54
      "BEGIN:VEVENT\r\nUID:12\r\nDTSTART:20260102T080000\r\n"                                                 // 56
      "BEGIN:VEVENT\r\nUID:13\r\nDTSTART:20260102T080000\r\nDTEND;VALUE=DATE:20260103\r\nEND:VEVENT\r\n"      // 59
      "BEGIN:VEVENT\r\nUID:15\r\nDTSTART:20260102T080000\r\nDURATION:PT999999999M\r\nEND:VEVENT\r\n"          // 64: 67
      "BEGIN:VTIMEZONE\r\nTZID:Dense\r\nBEGIN:STANDARD\r\nDTSTART:19700101T000000\r\nTZOFFSETFROM:+0000\r\n"  // 69
      "TZOFFSETTO:+0100\r\nRRULE:FREQ=MINUTELY\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n"                          // 74
      "BEGIN:VEVENT\r\nUID:16\r\nDTSTART;TZID=Dense:20260102T080000\r\nEND:VEVENT\r\n"                        // 78: 80
      "BEGIN:VTODO\r\nUID:14\r\n");                                                                           // 64
  EXPECT_EQ(described(*openMailbox()), "Tasks|good||1|status 0|0/0\n");
  EXPECT_EQ(told(report),
            "1 0 0 "
            "test.ics:6: DTSTART \"20260230T080000\" is no date or time\n"
            "test.ics:8: the VEVENT has no DTSTART\n"
            "test.ics:15: RRULE \"FREQ=NEVER\" is no rule that can be taken\n"
            "test.ics:17: the VTODO has no UID\n"
            "test.ics:22: DTSTART \"20260101T080000\" is in the unknown time zone \"Nowhere\"\n"
            "test.ics:24: the VEVENT ends before it starts\n"
            "test.ics:31: the line is no property\n"
            "test.ics:33: a VJOURNAL is neither an event nor a to-do\n"
            "test.ics:38: SUMMARY isn't UTF-8 text\n"
            "test.ics:46: PRIORITY takes a whole number from 0 to 9\n"
            "test.ics:50: PERCENT-COMPLETE takes a whole number from 0 to 100\n"
            "test.ics:54: X-TARNEL-TOTAL-WORK takes a whole number from -2147483648 to 2147483647\n"
            "test.ics:56: the VEVENT isn't ended\n"
            "test.ics:59: DTSTART and DTEND are not of one form\n"
            "test.ics:67: DURATION \"PT999999999M\" is too long for a duration\n"
            "test.ics:80: DTSTART \"20260102T080000\" is in the unknown time zone \"Dense\"\n"
            "test.ics:82: the VTODO isn't ended\n");
}

TEST_F(IcsTest, whatIsNoCalendarFailsAndChangesNothing) {
  auto mailbox = openMailbox();
  EXPECT_TRUE(contains(failureOf([&] { importIcs(*mailbox, folder_.write("notes.txt", "Dear diary")); }),
                       "notes.txt\" can't be imported: it has no calendar in it"));
  EXPECT_TRUE(contains(failureOf([&] { importIcs(*mailbox, folder_ / "missing.ics"); }), "No such file"));
  EXPECT_TRUE(contains(failureOf([&] { exportIcs(*mailbox, folder_ / "no/where.ics"); }), "can't be written"));
  EXPECT_EQ(described(*mailbox), "");
}

}  // namespace
}  // namespace tarnel::mailbox
