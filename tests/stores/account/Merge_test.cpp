#include <gtest/gtest.h>

#include "FailureOf.h"
#include "Merge.h"

namespace tarnel::account {
namespace {

// An item with these lines, of which "|" ends each.
std::string item(const std::string& lines, const std::string& outside = "") {
  std::string text = "BEGIN:VCALENDAR|VERSION:2.0|" + outside + "BEGIN:VTODO|UID:u|DTSTAMP:20260101T000000Z|" + lines +
                     "END:VTODO|END:VCALENDAR|";
  for (std::size_t at = 0; (at = text.find('|', at)) != std::string::npos;) text.replace(at, 1, "\r\n");
  return text;
}

Contents contentsOf(const std::string& lines, const std::string& outside = "") {
  return Contents::read(item(lines, outside)).value();
}

// The lines that the merged item has beside those that `item` gives it, then "later" of each conflict.
std::string merged(const std::string& base, const std::string& here, const std::string& there,
                   Side later = Side::here) {
  const Merged result = merge(contentsOf(base), contentsOf(here), contentsOf(there), later, "20260202T000000Z");
  std::string text;
  for (const mailbox::IcsLine& line : mailbox::unfolded(result.text))
    if (!line.text.starts_with("BEGIN:V") && !line.text.starts_with("END:V") && line.text != "VERSION:2.0" &&
        line.text != "UID:u" && !line.text.starts_with("DTSTAMP") && !line.text.starts_with("LAST-M"))
      text += line.text + "|";
  if (!result.changesThere) text += " as there";
  if (!result.changesHere) text += " as here";
  for (const FieldConflict& conflict : result.conflicts) text += " " + conflict.part + "/" + conflict.field;
  return text;
}

TEST(ContentsTest, whatServersRewriteSaysTheSame) {
  const std::pair<const char*, const char*> same[] = {
      {"SUMMARY:a|PRIORITY:1|", "PRIORITY:1|SUMMARY:a|"},
      {"X-A:a\\,b\\;c|", "X-A:a,b;c|"},
      {"CATEGORIES:b,a|", "CATEGORIES:a|CATEGORIES:b|"},
      {"SUMMARY:a|DESCRIPTION:|PRIORITY:0|", "SUMMARY:a|PERCENT-COMPLETE:0|"},
      {"DUE;VALUE=DATE-TIME;TZID=\"A B\":20260101T000000|", "DUE;TZID=A B:20260101T000000|"},
      {"RRULE:FREQ=DAILY;COUNT=2|", "RRULE:COUNT=2;FREQ=daily|"},
      {"SUMMARY:a|SEQUENCE:3|LAST-MODIFIED:20260101T000000Z|", "SUMMARY:a|CREATED:20200101T000000Z|"},
      {"SUMMARY:lo| ng|", "SUMMARY:long|"},
      {"BEGIN:VALARM|ACTION:AUDIO|TRIGGER:-PT5M|END:VALARM|BEGIN:VALARM|ACTION:DISPLAY|END:VALARM|",
       "BEGIN:VALARM|ACTION:DISPLAY|END:VALARM|BEGIN:VALARM|TRIGGER:-PT5M|ACTION:AUDIO|END:VALARM|"},
      {"STATUS:completed|", "STATUS:COMPLETED|"}};
  for (const auto& [left, right] : same) EXPECT_TRUE(contentsOf(left).sameAs(contentsOf(right))) << left << right;
  const std::pair<const char*, const char*> other[] = {
      {"SUMMARY:a|", "SUMMARY:A|"},
      {"CATEGORIES:a\\,b|", "CATEGORIES:a,b|"},
      {"DUE;VALUE=DATE:20260101|", "DUE:20260101|"},
      {"SUMMARY;LANGUAGE=de:a|", "SUMMARY:a|"},
      {"COMMENT:a|COMMENT:b|", "COMMENT:a|"},
      {"BEGIN:VALARM|TRIGGER:-PT5M|END:VALARM|", "BEGIN:VALARM|TRIGGER:-PT6M|END:VALARM|"},
      {"", "END:VTODO|BEGIN:VTODO|RECURRENCE-ID:20260101T000000Z|UID:u|"}};
  for (const auto& [left, right] : other) EXPECT_FALSE(contentsOf(left).sameAs(contentsOf(right))) << left << right;
  EXPECT_TRUE(contentsOf("").sameAs(contentsOf("", "BEGIN:VTIMEZONE|TZID:A|END:VTIMEZONE|")));
}

TEST(ContentsTest, whatCantBeReadWholeIsNoItem) {
  const std::string whole = item("SUMMARY:a|");
  EXPECT_EQ(Contents::read(whole)->uid() + " " + Contents::read(whole)->modified(), "u 20260101T000000Z");
  EXPECT_EQ(contentsOf("LAST-MODIFIED:20250101T000000Z|").modified(), "20250101T000000Z");
  for (const std::string& text :
       {std::string(), std::string("<html>"), whole.substr(0, whole.size() - 4), whole + whole,
        item("SUMMARY:caf\xE9|"), item("nonsense|"), item("END:VTODO|BEGIN:VTODO|UID:u|"),
        std::string("BEGIN:VCALENDAR\r\nEND:VCALENDAR\r\n")})
    EXPECT_FALSE(Contents::read(text)) << text;
}

TEST(MergeTest, differentFieldsJoinAndOneFieldShowsTheLaterEdit) {
  struct {
    const char *base, *here, *there, *laterHere, *laterThere;
  } const cases[] = {
      // Nothing, one side, both alike.
      {"SUMMARY:a|", "SUMMARY:a|", "SUMMARY:a|", "SUMMARY:a| as there as here", nullptr},
      {"SUMMARY:a|", "SUMMARY:b|", "SUMMARY:a|X-T:1|", "X-T:1|SUMMARY:b|", nullptr},
      {"SUMMARY:a|", "SUMMARY:a|", "SUMMARY:b|X-T:1|", "SUMMARY:b|X-T:1| as there", nullptr},
      {"SUMMARY:a|", "SUMMARY:b|", "SUMMARY:b|", "SUMMARY:b| as there as here", nullptr},
      {"SUMMARY:a|PRIORITY:1|", "PRIORITY:1|", "SUMMARY:a|PRIORITY:5|", "PRIORITY:5|", nullptr},
      {"SUMMARY:a|SEQUENCE:4|", "SUMMARY:b|SEQUENCE:4|", "SUMMARY:a|SEQUENCE:9|", "SEQUENCE:10|SUMMARY:b| as here",
       nullptr},
      // One field, in two ways.
      {"SUMMARY:a|", "SUMMARY:b|", "SUMMARY:c|", "SUMMARY:b| as here VTODO/SUMMARY",
       "SUMMARY:c| as there VTODO/SUMMARY"},
      {"SUMMARY:a|", "", "SUMMARY:c|", " as here VTODO/SUMMARY", "SUMMARY:c| as there VTODO/SUMMARY"},
      // Groups stay whole.
      {"DUE:20260105T100000Z|", "DUE:20260106T100000Z|",
       "DTSTART:20260104T100000Z|DUE:20260105T100000Z|RRULE:FREQ=DAILY|", "DUE:20260106T100000Z| as here VTODO/times",
       "DTSTART:20260104T100000Z|DUE:20260105T100000Z|RRULE:FREQ=DAILY| as there VTODO/times"},
      {"STATUS:NEEDS-ACTION|", "STATUS:COMPLETED|COMPLETED:20260101T000000Z|PERCENT-COMPLETE:100|",
       "STATUS:NEEDS-ACTION|DUE:20260105T100000Z|",
       "DUE:20260105T100000Z|STATUS:COMPLETED|COMPLETED:20260101T000000Z|PERCENT-COMPLETE:100|", nullptr},
      {"", "STATUS:COMPLETED|", "PERCENT-COMPLETE:50|STATUS:IN-PROCESS|", "STATUS:COMPLETED| as here VTODO/status",
       "PERCENT-COMPLETE:50|STATUS:IN-PROCESS| as there VTODO/status"},
      {"SUMMARY:a|", "SUMMARY:a|BEGIN:VALARM|TRIGGER:-PT5M|END:VALARM|", "SUMMARY:b|", "SUMMARY:b|TRIGGER:-PT5M|",
       nullptr},
      {"", "X-TARNEL-USER-PROPERTY;X-NAME=a:1|", "X-TARNEL-USER-PROPERTY;X-NAME=b:2|",
       "X-TARNEL-USER-PROPERTY;X-NAME=b:2|X-TARNEL-USER-PROPERTY;X-NAME=a:1|", nullptr},
      // Both bodies are kept, and not twice.
      {"DESCRIPTION:a|", "DESCRIPTION:o\\, 1|", "DESCRIPTION:t|", "DESCRIPTION:t\\n\\no\\, 1|", nullptr},
      {"DESCRIPTION:a|", "DESCRIPTION:t\\n\\no|", "DESCRIPTION:t|", "DESCRIPTION:t\\n\\no| as here", nullptr},
      {"DESCRIPTION:a|", "DESCRIPTION:o|", "DESCRIPTION:t\\n\\no|", "DESCRIPTION:t\\n\\no| as there", nullptr},
      {"DESCRIPTION:a|", "", "DESCRIPTION:t|", " as here VTODO/DESCRIPTION",
       "DESCRIPTION:t| as there VTODO/DESCRIPTION"}};
  for (const auto& [base, here, there, laterHere, laterThere] : cases) {
    EXPECT_EQ(merged(base, here, there, Side::here), laterHere) << base << here << there;
    EXPECT_EQ(merged(base, here, there, Side::there), laterThere ? laterThere : laterHere) << base << here << there;
  }
}

TEST(MergeTest, exceptionsOfASeriesAreMergedByTheirOccurrence) {
  const auto exception = [](const std::string& day, const std::string& summary) {
    return "END:VTODO|BEGIN:VTODO|UID:u|RECURRENCE-ID:" + day + "|SUMMARY:" + summary + "|";
  };
  const std::string one = exception("1", "a"), two = exception("2", "b");
  const auto both = [](const std::string& left, const std::string& right) { return "SUMMARY:s|" + left + right; };
  EXPECT_EQ(merged(both(one, ""), both(one, two), both(exception("1", "c"), "")),
            "SUMMARY:s|RECURRENCE-ID:1|SUMMARY:c|RECURRENCE-ID:2|SUMMARY:b|");
  EXPECT_EQ(merged(both(one, two), both(one, ""), both("", two)), "SUMMARY:s|") << "each side has removed one";
  EXPECT_EQ(merged(both(one, ""), both(exception("1", "c"), ""), both("", "")),
            "SUMMARY:s|RECURRENCE-ID:1|SUMMARY:c| as here VTODO 1/")
      << "an edit wins over a removal";
  EXPECT_EQ(merged(both(one, ""), both("", ""), both(exception("1", "c"), "")),
            "SUMMARY:s|RECURRENCE-ID:1|SUMMARY:c| as there VTODO 1/");
}

TEST(MergeTest, theServersTextStaysAndWhatWasChangedIsDated) {
  const std::string zone = "BEGIN:VTIMEZONE|TZID:A|END:VTIMEZONE|", long75(80, 'x');
  const Contents here = contentsOf("DUE;TZID=A:20260101T000000|", zone), base = contentsOf("");
  const Contents there = contentsOf("x-own;x-p=\"a;b\":1|SUMMARY:" + long75 + "|", "PRODID:theirs|");
  const Merged result = merge(base, here, there, Side::here, "20260202T000000Z");
  EXPECT_EQ(result.text,
            "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:theirs\r\nBEGIN:VTODO\r\nDTSTAMP:20260202T000000Z\r\n"
            "LAST-MODIFIED:20260202T000000Z\r\nUID:u\r\nx-own;x-p=\"a;b\":1\r\nSUMMARY:" +
                long75.substr(0, 67) + "\r\n " + long75.substr(67) +
                "\r\nDUE;TZID=A:20260101T000000\r\nEND:VTODO\r\n"
                "BEGIN:VTIMEZONE\r\nTZID:A\r\nEND:VTIMEZONE\r\nEND:VCALENDAR\r\n");
  const Merged untouched = merge(there, there, there, Side::here, "20260202T000000Z");
  EXPECT_TRUE(test::contains(untouched.text, "DTSTAMP:20260101T000000Z\r\nx-own"));
  // Without an agreed state what differs is a conflict, and what is equal is not.
  const Merged fresh =
      merge({}, contentsOf("SUMMARY:a|PRIORITY:1|"), contentsOf("SUMMARY:b|PRIORITY:1|"), Side::there, "x");
  EXPECT_EQ(fresh.conflicts.size(), 1u);
}

}  // namespace
}  // namespace tarnel::account
