#include "AppointmentsFixture.h"

#include <array>
#include <cstdio>

#include "IcsReader.h"
#include "MailboxFile.h"
#include "m_OutlookWizard.h"

namespace tarnel::test {
namespace {

std::string clockText(int minute) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%02d:%02d", minute / 60, minute % 60);
  return text.data();
}

}  // namespace

AppointmentsTest::AppointmentsTest()
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

void AppointmentsTest::addAppt(const std::string& key, const std::string& start, const std::string& end,
                               const std::string& text) {
  database_.run("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taTaskDesc, taStartTime, taEndTime) VALUES ('" + key +
                "', 'T1', '" + text + "', #" + start + "#, #" + end + "#)");
}

void AppointmentsTest::addEvent(const std::vector<std::string>& lines) {
  std::string text =
      "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:test\r\nBEGIN:VEVENT\r\nUID:" + std::to_string(++events_) + "\r\n";
  for (const std::string& line : lines) text += line + "\r\n";
  addEvents(text + "END:VEVENT\r\nEND:VCALENDAR\r\n", 1);
}

void AppointmentsTest::addEvents(const std::string& calendar, int count) {
  auto box = openMailbox();
  const auto report = mailbox::importIcsText(box, calendar, "test");
  ASSERT_EQ(report.added, count) << (report.skipped.empty() ? "" : report.skipped.front());
}

void AppointmentsTest::addEvent(const std::string& subject, const std::string& start, const std::string& end,
                                const std::string& location) {
  addEvent({"SUMMARY:" + subject, "DTSTART:" + start, "DTEND:" + end, "LOCATION:" + location});
}

std::string AppointmentsTest::entryIdOf(const std::string& subject) {
  auto box = openMailbox();
  for (const mailbox::ListedItem& item : mailbox::listItems(box))
    if (item.subject == subject) return item.entryId;
  return {};
}

std::string AppointmentsTest::rowsOf(const ctMDay& schedule) {
  std::string text;
  for (std::int16_t i = 1; i <= schedule.AppCount(); ++i) {
    const ctMDay::Appointment& row = schedule.appointment(i);
    text += clockText(row.start) + "-" + clockText(row.end) + " " + std::to_string(Date{double(row.date)}.civil().day) +
            " " + row.text + (row.allDay ? " all day" : "") + " [" + std::to_string(row.ownerImage) + " " +
            std::to_string(row.markImage) + "]\n";
  }
  return text;
}

std::string AppointmentsTest::items() {
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

void AppointmentsTest::press(const std::string& bar, const std::string& key) {
  auto& items = control<SmartUI>(bar);
  items.press(items.Items().Item(key));
}

void AppointmentsTest::selectAll(ctMDay& schedule) {
  for (std::int16_t i = 1; i <= schedule.AppCount(); ++i) schedule.select(i);
}

std::string AppointmentsTest::report() const {
  const auto& reports = platform_.errorReport.reports;
  if (reports.size() != 1) return std::to_string(reports.size()) + " reports";
  return reports.front().procedure + " " + std::to_string(reports.front().number);
}

}  // namespace tarnel::test
