#include "AppointmentsFixture.h"
#include "m_OutlookWizard.h"

namespace tarnel::test {
namespace {

class DeleteAppointmentsTest : public AppointmentsTest {
 protected:
  DeleteAppointmentsTest() {
    addAppt("A1", "11/19/2026 08:00:00", "11/19/2026 09:00:00", "Write");
    addAppt("A2", "11/19/2026 10:00:00", "11/19/2026 11:30:00", "Review");
    addEvent("Dentist", "20261119T120000", "20261119T130000");
    addEvent({"SUMMARY:Stand-up", "DTSTART:20261102T091500", "DTEND:20261102T093000", "RRULE:FREQ=DAILY"});
    day().refreshDay();
    tarnel().select(1);
    press("smtApptActions(0)", "UPDATE");  // A1 stands in Outlook, too
    day().refreshDay();
  }

  static std::int16_t indexOf(const ctMDay& schedule, const std::string& text) {
    for (std::int16_t i = 1; i <= schedule.AppCount(); ++i)
      if (schedule.appointment(i).text == text) return i;
    return 0;
  }
  void answerYes() { platform_.desktop.answers.push_back(MessageAnswer::yes); }
  std::string lastMessage() const { return platform_.desktop.messageTexts().back(); }

  const std::string dentist = "Calendar: Dentist 2026-11-19 12:00:00 to 2026-11-19 13:00:00 @ \n";
  const std::string standUp = "Calendar: Stand-up 2026-11-02 09:15:00 to 2026-11-02 09:30:00 @ \n";
  const std::string write =
      "Calendar: Write 2026-11-19 08:00:00 to 2026-11-19 09:00:00 @ Tarnel BrackwellTarnelGUID=A1\n";
};

TEST_F(DeleteAppointmentsTest, withoutMarksEachSideSaysSo) {
  EXPECT_FALSE(day().DeleteOutlookAppts());
  EXPECT_EQ(lastMessage(), "No Outlook Appointments or Task Appointments selected to delete.");
  EXPECT_FALSE(day().DeleteTarnelAppts());
  const std::string noTasks =
      "No Tarnel Task Appointments selected to delete. (Delete Outlook Appointments in the Outlook half of the "
      "Wizard, or if reoccuring, in Outlook itself.)";
  EXPECT_EQ(lastMessage(), noTasks);
  // No user can mark a row of Outlook here; were one marked, it would not count.
  const std::int16_t foreign = indexOf(tarnel(), "Dentist");
  tarnel().setAppMarkImage(foreign, 3);
  EXPECT_FALSE(day().DeleteTarnelAppts());
  EXPECT_EQ(lastMessage(), noTasks);
  EXPECT_EQ(tarnel().AppMarkImage(foreign), 3);
}

TEST_F(DeleteAppointmentsTest, aRecordWhoseItemWasDeletedByHandGoesWithoutOutlook) {
  {
    auto box = openMailbox();
    mailbox::deleteItem(box, entryIdOf("Write"));
  }
  day().refreshDay();
  tarnel().select(1);
  platform_.use(noOutlook_);
  answerYes();
  EXPECT_TRUE(day().DeleteTarnelAppts());
  EXPECT_EQ(links(), "A2|-\n");
  EXPECT_EQ(report(), "0 reports");
}

TEST_F(DeleteAppointmentsTest, anItemThatIsGoneForGoodEndsTheCommandAndKeepsTheRecord) {
  {
    auto box = openMailbox();
    const std::string id = entryIdOf("Write");
    mailbox::deleteItem(box, id);
    mailbox::deleteItem(box, id);
  }
  tarnel().select(1);
  answerYes();
  EXPECT_FALSE(day().DeleteTarnelAppts());
  EXPECT_EQ(report().substr(0, 18), "DeleteTarnelAppts ");
  EXPECT_EQ(links(), "A1|A1\nA2|-\n");
}

TEST_F(DeleteAppointmentsTest, withOutlookOutOfReachTheOutlookSideReportsAndKeepsTheLink) {
  outlookSide().select(indexOf(outlookSide(), "Write"));
  platform_.use(noOutlook_);
  answerYes();
  EXPECT_FALSE(day().DeleteOutlookAppts());
  EXPECT_EQ(report(), "DeleteOutlookAppts 91");
  EXPECT_EQ(links(), "A1|A1\nA2|-\n");
}

TEST_F(DeleteAppointmentsTest, aTagThatIsNoBagEndsTheCommand) {
  outlookSide().setAppTag(1, "TAG9=True");
  outlookSide().select(1);
  answerYes();
  EXPECT_FALSE(day().DeleteOutlookAppts());
  EXPECT_EQ(report(), "DeleteOutlookAppts " + std::to_string(static_cast<std::int32_t>(0x80044719)));
}

TEST_F(DeleteAppointmentsTest, keysAreNoPartOfTheStatement) {
  addAppt("o''brien", "11/19/2026 16:00:00", "11/19/2026 17:00:00");
  EXPECT_TRUE(deleteAppt("x' OR '1'='1"));
  EXPECT_TRUE(deleteAppt("o'brien"));
  EXPECT_EQ(links(), "A1|A1\nA2|-\n");
}

TEST_F(DeleteAppointmentsTest, aForeignRowIsNeverTakenForTheCopyOfAnEmptyKey) {
  addAppt("", "11/19/2026 16:00:00", "11/19/2026 17:00:00", "No key");
  day().refreshDay();
  tarnel().select(indexOf(tarnel(), "No key"));
  answerYes();
  EXPECT_TRUE(day().DeleteTarnelAppts());
  EXPECT_EQ(items(), dentist + standUp + write);
  EXPECT_EQ(links(), "A1|A1\nA2|-\n");
}

TEST_F(DeleteAppointmentsTest, eventsThatRefillTheDayMeanwhileTakeNoOtherRow) {
  selectAll(outlookSide());
  platform_.desktop.onEvents = [this] {
    platform_.desktop.onEvents = nullptr;
    chooseDate(11, 20);
  };
  answerYes();
  EXPECT_TRUE(day().DeleteOutlookAppts());
  EXPECT_EQ(report(), "0 reports");
  EXPECT_EQ(items(), "Deleted Items" + dentist.substr(8) + standUp + write);
  EXPECT_EQ(rowsOf(outlookSide()), "09:15-09:30 20 Stand-up [1 0]\n");
}

TEST_F(DeleteAppointmentsTest, theFormMayCloseWhileEventsRun) {
  outlookSide().select(indexOf(outlookSide(), "Write"));
  platform_.desktop.onEvents = [this] { day().closeRows(); };
  answerYes();
  EXPECT_FALSE(day().DeleteOutlookAppts());
  EXPECT_EQ(report(), "DeleteOutlookAppts 91");
  EXPECT_EQ(items(), dentist + standUp + write);
}

}  // namespace
}  // namespace tarnel::test
