#include "AppointmentsFixture.h"
#include "ApptTransfer.h"

namespace tarnel::test {
namespace {

// The day with a Task Appointment that is in Outlook, too, one that doesn't, an Outlook appointment, and a series.
struct AppointmentCommandsTest : AppointmentsTest {
  AppointmentCommandsTest() {
    addAppt("A1", "11/19/2026 08:00:00", "11/19/2026 09:00:00", "Write");
    addAppt("A2", "11/19/2026 10:00:00", "11/19/2026 11:30:00", "Review");
    addEvent("Dentist", "20261119T120000", "20261119T130000");
    addEvent({"SUMMARY:Stand-up", "DTSTART:20261102T091500", "DTEND:20261102T093000", "RRULE:FREQ=DAILY"});
    day().refreshDay();
    tarnel().select(1);
    press("smtApptActions(0)", "UPDATE");  // A1 is in Outlook, too
    day().refreshDay();
  }

  void answerYes() { platform_.desktop.answers.push_back(MessageAnswer::yes); }

  static std::int16_t indexOf(const ctMDay& schedule, const std::string& text) {
    for (std::int16_t i = 1; i <= schedule.AppCount(); ++i)
      if (schedule.appointment(i).text == text) return i;
    return 0;
  }
  void deleteByHand(const std::string& subject) {
    auto box = openMailbox();
    mailbox::deleteItem(box, entryIdOf(subject));
  }
  std::string lastMessage() const { return platform_.desktop.messageTexts().back(); }

  const std::string dentist = "Calendar: Dentist 2026-11-19 12:00:00 to 2026-11-19 13:00:00 @ \n";
  // The user does so once, at the next chance.
  void chooseNextDayAmongEvents() {
    platform_.desktop.onEvents = [this] {
      platform_.desktop.onEvents = nullptr;
      chooseDate(11, 20);
    };
  }

  const std::string standUp = "Calendar: Stand-up 2026-11-02 09:15:00 to 2026-11-02 09:30:00 @ \n";
  const std::string write =
      "Calendar: Write 2026-11-19 08:00:00 to 2026-11-19 09:00:00 @ Tarnel BrackwellTarnelGUID=A1\n";
};

TEST_F(AppointmentCommandsTest, anItemThatStartsAtMidnightShowsAsTheWholeDay) {
  addAppt("A3", "11/20/2026 00:00:00", "11/20/2026 01:00:00", "Early");
  day().refreshDay();
  tarnel().select(indexOf(tarnel(), "Early"));
  press("smtApptActions(0)", "UPDATE");
  EXPECT_TRUE(rowsOf(outlookSide()).ends_with("00:00-24:00 20 Early [2 0]\n")) << rowsOf(outlookSide());
  EXPECT_EQ(session().theOutlookNS, nullptr);
}

TEST_F(AppointmentCommandsTest, aMarkedRowWithoutARecordIsNotCopiedAndLosesItsMark) {
  const std::int16_t review = indexOf(tarnel(), "Review");
  tarnel().setAppTag(review, "gone");
  tarnel().select(review);
  EXPECT_TRUE(Tarnel2OUTAppts(day()));
  EXPECT_EQ(tarnel().AppMarkImage(review), 0);
  EXPECT_EQ(items() + links(), dentist + standUp + write + "A1|A1\nA2|-\n");
}

TEST_F(AppointmentCommandsTest, aRecordThatSomeoneElseChangedIsNotCopied) {
  tarnel().select(indexOf(tarnel(), "Review"));
  database_.run("UPDATE TASKAPPTS SET taOutlookEntryID = 'A2' WHERE taGUIDID = 'A2'");
  EXPECT_FALSE(Tarnel2OUTAppts(day()));
  EXPECT_EQ(report(), "Tarnel2OUTAppts -2147217864");
  EXPECT_EQ(items(), dentist + standUp + write);
}

TEST_F(AppointmentCommandsTest, withoutMarksEachSideSaysSo) {
  EXPECT_FALSE(DeleteOutlookAppts(day()));
  EXPECT_EQ(lastMessage(), "No Outlook Appointments or Task Appointments selected to delete.");
  EXPECT_FALSE(DeleteTarnelAppts(day()));
  EXPECT_EQ(lastMessage(),
            "No Tarnel Task Appointments selected to delete. (Delete Outlook Appointments in the Outlook half of the "
            "Wizard, or if reoccuring, in Outlook itself.)");
}

TEST_F(AppointmentCommandsTest, aRecordWhoseItemWasDeletedByHandGoesWithoutOutlook) {
  deleteByHand("Write");
  day().refreshDay();
  tarnel().select(1);
  platform_.use(noOutlook_);
  answerYes();
  EXPECT_TRUE(DeleteTarnelAppts(day()));
  EXPECT_EQ(report() + "; " + links(), "0 reports; A2|-\n");
}

TEST_F(AppointmentCommandsTest, anItemThatIsGoneForGoodEndsTheCommandAndKeepsTheRecord) {
  for (int i = 0; i < 2; ++i) deleteByHand("Write");
  tarnel().select(1);
  answerYes();
  EXPECT_FALSE(DeleteTarnelAppts(day()));
  EXPECT_EQ(report().substr(0, 18) + links(), "DeleteTarnelAppts A1|A1\nA2|-\n");
}

TEST_F(AppointmentCommandsTest, withOutlookOutOfReachTheOutlookSideReportsAndKeepsTheLink) {
  outlookSide().select(indexOf(outlookSide(), "Write"));
  platform_.use(noOutlook_);
  answerYes();
  EXPECT_FALSE(DeleteOutlookAppts(day()));
  EXPECT_EQ(report() + "; " + links(), "DeleteOutlookAppts 91; A1|A1\nA2|-\n");
}

TEST_F(AppointmentCommandsTest, keysAreNoPartOfTheStatement) {
  addAppt("o''brien", "11/19/2026 16:00:00", "11/19/2026 17:00:00");
  EXPECT_TRUE(deleteAppt("x' OR '1'='1"));
  EXPECT_TRUE(deleteAppt("o'brien"));
  EXPECT_EQ(links(), "A1|A1\nA2|-\n");
}

TEST_F(AppointmentCommandsTest, aForeignRowIsNeverTakenForTheCopyOfAnEmptyKey) {
  addAppt("", "11/19/2026 16:00:00", "11/19/2026 17:00:00", "No key");
  day().refreshDay();
  tarnel().select(indexOf(tarnel(), "No key"));
  answerYes();
  EXPECT_TRUE(DeleteTarnelAppts(day()));
  EXPECT_EQ(items(), dentist + standUp + write);
  EXPECT_EQ(links(), "A1|A1\nA2|-\n");
}

TEST_F(AppointmentCommandsTest, aDayChosenWhileAnotherIsReadIsTheOneOnShow) {
  chooseNextDayAmongEvents();
  chooseDate(11, 18);
  EXPECT_EQ(rowsOf(outlookSide()) + rowsOf(tarnel()), "09:15-09:30 20 Stand-up [1 0]\n09:15-09:30 20 Stand-up [1 0]\n");
  EXPECT_EQ(tarnel().ShowDate(), Date::of(2026, 11, 20));
}

TEST_F(AppointmentCommandsTest, eventsThatRefillTheDayMeanwhileTakeNoOtherRow) {
  selectAll(outlookSide());
  chooseNextDayAmongEvents();
  answerYes();
  EXPECT_TRUE(DeleteOutlookAppts(day()));
  EXPECT_EQ(report(), "0 reports");
  EXPECT_EQ(items(), "Deleted Items" + dentist.substr(8) + standUp + write);
  EXPECT_EQ(rowsOf(outlookSide()), "09:15-09:30 20 Stand-up [1 0]\n");
  EXPECT_EQ(tarnel().ShowDate(), Date::of(2026, 11, 20));
  EXPECT_EQ(outlookSide().ShowDate(), Date::of(2026, 11, 20));
}

}  // namespace
}  // namespace tarnel::test
