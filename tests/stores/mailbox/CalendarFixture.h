#pragma once

#include <time.h>

#include "IcsReader.h"
#include "IcsWriter.h"
#include "Locale.h"
#include "MailboxFixture.h"
#include "MailboxList.h"

namespace tarnel::mailbox {

// The machine is in central Europe: clocks go forward on the last Sunday of March, back on that of October.
struct CalendarTest : MailboxTest {
  CalendarTest() { setZone("CET-1CEST,M3.5.0,M10.5.0/3"); }
  ~CalendarTest() override { setZone("UTC0"); }

  static void setZone(const char* zone) {
    setenv("TZ", zone, 1);
    tzset();
  }

  static std::string calendar(const std::string& components) {
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//x//y\r\n" + components + "END:VCALENDAR\r\n";
  }
  ImportReport import(const std::string& components) {
    return importIcsText(*openMailbox(), calendar(components), "test.ics");
  }

  // The appointments of a day, found as the wizard finds them: "09:00-09:30 Standup; ...".
  std::string day(Date date) {
    auto items = daysItems(date);
    std::string text;
    for (auto item = items->GetFirst(); item; item = items->GetNext()) {
      auto each = std::dynamic_pointer_cast<outlook::AppointmentItem>(item);
      text += (text.empty() ? "" : "; ") + Locale().shortTime(each->Start()) + "-" + Locale().shortTime(each->end()) +
              " " + each->subject();
    }
    return text;
  }
  std::shared_ptr<outlook::Items> daysItems(Date date) {
    auto items = itemsOf(*outlook_, calendarFolder);
    items->Sort("[Start]");
    items->setIncludeRecurrences(true);
    const std::string shortDate = Locale().shortDate(date);
    return items->Restrict("[Start] <= \"" + shortDate + " 11:59 PM\" AND [End] > \"" + shortDate + " 12:00 AM\"");
  }
  std::shared_ptr<outlook::AppointmentItem> occurrenceOn(Date date) {
    return std::dynamic_pointer_cast<outlook::AppointmentItem>(daysItems(date)->GetFirst());
  }

  std::shared_ptr<outlook::Application> outlook_ = loggedOn();
};

}  // namespace tarnel::mailbox
