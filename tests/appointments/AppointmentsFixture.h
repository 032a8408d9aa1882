#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include "AppointmentsTab.h"
#include "IcsReader.h"
#include "MailboxFile.h"
#include "MailboxList.h"
#include "OutlookFactory.h"
#include "TaskDatabase.h"
#include "TestPlatform.h"

namespace tarnel::test {

// The Appointments tab on 2026-11-19 with a real task database and a real mailbox, both empty.
struct AppointmentsTest : testing::Test {
  AppointmentsTest()
      : outlook_([](const std::string&) { return std::nullopt; }, mailboxPath_, Locale(), platform_.clock) {
    mailbox::createMailbox(mailboxPath_);
    platform_.use(database_.provider);
    platform_.use(outlook_);
    session().theszConnect = database_.connect();
    session().theDateFormats[dateFormat::apptColor] = "65280";
    session().theOutlookApptColor = 255;
    session().theWorkDayStart = 480;
    session().theWorkDayEnd = 1020;
    form_.formLoading = true;
    form_.formCurDate = Date::of(2026, 11, 19);
    tab_.showFormDate();
    form_.formLoading = false;
  }

  // Times as Jet writes them: "11/19/2026 08:00:00".
  void addAppt(const std::string& key, const std::string& start, const std::string& end,
               const std::string& text = "Work") {
    database_.run("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taTaskDesc, taStartTime, taEndTime) VALUES ('" + key +
                  "', 'T1', '" + text + "', #" + start + "#, #" + end + "#)");
  }
  // Lines of a VEVENT, such as "SUMMARY:Dentist", that come with a UID.
  void addEvent(const std::vector<std::string>& lines) {
    std::string text =
        "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:test\r\nBEGIN:VEVENT\r\nUID:" + std::to_string(++events_) + "\r\n";
    for (const std::string& line : lines) text += line + "\r\n";
    addEvents(text + "END:VEVENT\r\nEND:VCALENDAR\r\n", 1);
  }
  void addEvent(const std::string& subject, const std::string& start, const std::string& end,
                const std::string& location = {}) {
    addEvent({"SUMMARY:" + subject, "DTSTART:" + start, "DTEND:" + end, "LOCATION:" + location});
  }
  // A whole calendar, of as many events.
  void addEvents(const std::string& calendar, int count) {
    auto box = openMailbox();
    const auto report = mailbox::importIcsText(box, calendar, "test");
    ASSERT_EQ(report.added, count) << (report.skipped.empty() ? "" : report.skipped.front());
  }
  // An open mailbox beside the wizard's own connections, as another program would have it.
  mailbox::Mailbox openMailbox() { return {mailboxPath_, Locale(), platform_.clock}; }
  std::string entryIdOf(const std::string& subject) {
    auto box = openMailbox();
    for (const mailbox::ListedItem& item : mailbox::listItems(box))
      if (item.subject == subject) return item.entryId;
    return {};
  }

  static std::string clockText(int minute) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%02d:%02d", minute / 60, minute % 60);
    return text.data();
  }
  // "08:00-09:00 19 text [owner mark]" a row.
  static std::string rowsOf(const ctMDay& schedule) {
    std::string text;
    for (std::int16_t i = 1; i <= schedule.AppCount(); ++i) {
      const ctMDay::Appointment& row = schedule.appointment(i);
      text += clockText(row.start) + "-" + clockText(row.end) + " " +
              std::to_string(Date{double(row.date)}.civil().day) + " " + row.text + (row.allDay ? " all day" : "") +
              " [" + std::to_string(row.ownerImage) + " " + std::to_string(row.markImage) + "]\n";
    }
    return text;
  }
  // "Folder: subject 2026-11-19 08:00:00 to 2026-11-19 09:00:00 @ location link" an item.
  std::string items() {
    auto box = openMailbox();
    std::string text;
    for (const mailbox::ListedItem& item : mailbox::listItems(box)) {
      text += item.folder + ": " + item.subject + " " + isoText(*item.start) + " to " + isoText(*item.end) + " @ " +
              *item.location;
      for (const auto& [name, value] : item.userProperties) text += " " + name + "=" + value;
      text += "\n";
    }
    return text;
  }
  std::string links() {
    return database_.describe("SELECT taGUIDID, taOutlookEntryID FROM TASKAPPTS ORDER BY taGUIDID");
  }

  DaySchedules& day() { return tab_.schedules; }
  ctMDay& tarnel() { return tab_.schedules.tarnelSide; }
  ctMDay& outlookSide() { return tab_.schedules.outlookSide; }
  template <class Wanted>
  Wanted& control(const std::string& fullName) {
    for (Control* each : tab_.controls())
      if (each->fullName() == fullName) return dynamic_cast<Wanted&>(*each);
    throw std::out_of_range(fullName);
  }
  void press(const std::string& bar, const std::string& key) {
    auto& items = control<SmartUI>(bar);
    items.press(items.Items().Item(key));
  }
  void chooseDate(int month, int dayOfMonth) {
    control<ctDropDate>("ctDeadline").setDate(Date::of(2026, month, dayOfMonth));
  }
  // Marks all that can be marked on the side, as a user would.
  static void selectAll(ctMDay& schedule) {
    for (std::int16_t i = 1; i <= schedule.AppCount(); ++i) schedule.select(i);
  }
  // The one report there was: "PROCEDURE number".
  std::string report() const {
    const auto& reports = platform_.errorReport.reports;
    if (reports.size() != 1) return std::to_string(reports.size()) + " reports";
    return reports.front().procedure + " " + std::to_string(reports.front().number);
  }

  TaskDatabase database_;
  TestPlatform platform_;
  std::filesystem::path mailboxPath_ = platform_.applicationFolder / "Outlook.mailbox";
  mailbox::OutlookFactory outlook_;
  NoOutlook noOutlook_;
  FormState form_;
  AppointmentsTab tab_{form_};
  int events_ = 0;
};

}  // namespace tarnel::test
