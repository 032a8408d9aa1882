#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "AppointmentsTab.h"
#include "MailboxList.h"
#include "NoOutlook.h"
#include "OutlookFactory.h"
#include "TaskDatabase.h"
#include "TestPlatform.h"

namespace tarnel::test {

// The Appointments tab on 2026-11-19 with a real task database and a real mailbox, both empty.
class AppointmentsTest : public ::testing::Test {
 protected:
  AppointmentsTest();

  // Times as Jet writes them: "11/19/2026 08:00:00".
  void addAppt(const std::string& key, const std::string& start, const std::string& end,
               const std::string& text = "Work");
  // Lines of a VEVENT, such as "SUMMARY:Dentist", that come with a UID.
  void addEvent(const std::vector<std::string>& lines);
  void addEvent(const std::string& subject, const std::string& start, const std::string& end,
                const std::string& location = {});
  // A whole calendar, of as many events.
  void addEvents(const std::string& calendar, int count);
  // An open mailbox beside the wizard's own connections, as another program would have it.
  mailbox::Mailbox openMailbox() { return {mailboxPath_, Locale(), platform_.clock}; }
  std::string entryIdOf(const std::string& subject);

  // "08:00-09:00 19 text [owner mark]" a row.
  static std::string rowsOf(const ctMDay& schedule);
  // "Folder: subject 2026-11-19 08:00:00 to 2026-11-19 09:00:00 @ location link" an item.
  std::string items();
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
  void press(const std::string& bar, const std::string& key);
  void chooseDate(int month, int dayOfMonth) {
    control<ctDropDate>("ctDeadline").setDate(Date::of(2026, month, dayOfMonth));
  }
  // Marks all that can be marked on the side, as a user would.
  static void selectAll(ctMDay& schedule);
  // The one report there was: "PROCEDURE number".
  std::string report() const;

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
