#include "AppointmentsFixture.h"
#include "CStringBag.h"
#include "m_OutlookWizard.h"

namespace tarnel::test {
namespace {

class CopyAppointmentsTest : public AppointmentsTest {
 protected:
  CopyAppointmentsTest() {
    addAppt("A1", "11/19/2026 08:00:00", "11/19/2026 09:00:00", "Write");
    addAppt("A2", "11/19/2026 10:00:00", "11/19/2026 11:30:00", "Review");
  }

  // From a fresh display of the day.
  void copyAll() {
    day().refreshDay();
    press("smtApptActions(0)", "ALL");
    press("smtApptActions(0)", "UPDATE");
  }
};

TEST_F(CopyAppointmentsTest, aFirstCopyLinksCreatesAndShowsEachMarkedRow) {
  copyAll();
  EXPECT_EQ(links(), "A1|A1\nA2|A2\n");
  EXPECT_EQ(items(),
            "Calendar: Review 2026-11-19 10:00:00 to 2026-11-19 11:30:00 @ Tarnel BrackwellTarnelGUID=A2\n"
            "Calendar: Write 2026-11-19 08:00:00 to 2026-11-19 09:00:00 @ Tarnel BrackwellTarnelGUID=A1\n");
  EXPECT_EQ(rowsOf(tarnel()), "08:00-09:00 19 Write [2 0]\n10:00-11:30 19 Review [2 0]\n");
  EXPECT_EQ(rowsOf(outlookSide()), "10:00-11:30 19 Review [2 0]\n08:00-09:00 19 Write [2 0]\n");
  const ctMDay::Appointment& row = outlookSide().appointment(2);
  EXPECT_EQ(row.key, entryIdOf("Write"));
  EXPECT_EQ(row.tag, "ENTRYID=" + row.key + "\tBRACKWELLTARNELGUID=A1\t");
  EXPECT_EQ(row.color, 65280);
  EXPECT_TRUE(row.flagA && row.flagB);
  EXPECT_EQ(session().theOutlookNS, nullptr);
  EXPECT_EQ(report(), "0 reports");
}

TEST_F(CopyAppointmentsTest, onlyMarkedRowsAreCopiedFromEitherBar) {
  day().refreshDay();
  tarnel().select(2);
  press("smtApptActions(1)", "UPDATE");
  EXPECT_EQ(links(), "A1|-\nA2|A2\n");
  EXPECT_TRUE(day().Tarnel2OUTAppts());
  EXPECT_EQ(outlookSide().AppCount(), 1);
}

TEST_F(CopyAppointmentsTest, anItemThatStartsAtMidnightShowsAsTheWholeDay) {
  addAppt("A3", "11/20/2026 00:00:00", "11/20/2026 01:00:00", "Early");
  day().refreshDay();
  tarnel().select(3);
  press("smtApptActions(0)", "UPDATE");
  EXPECT_EQ(rowsOf(outlookSide()), "00:00-24:00 20 Early [2 0]\n");
}

TEST_F(CopyAppointmentsTest, aMarkedRowWithoutARecordOnlyLosesItsMark) {
  day().refreshDay();
  tarnel().setAppTag(1, "gone");
  tarnel().select(1);
  EXPECT_TRUE(day().Tarnel2OUTAppts());
  EXPECT_EQ(tarnel().AppMarkImage(1), 0);
  EXPECT_EQ(items() + links(), "A1|-\nA2|-\n");
}

TEST_F(CopyAppointmentsTest, aRecordThatSomeoneElseChangedIsNotCopied) {
  day().refreshDay();
  tarnel().select(1);
  database_.run("UPDATE TASKAPPTS SET taOutlookEntryID = 'A1' WHERE taGUIDID = 'A1'");
  EXPECT_FALSE(day().Tarnel2OUTAppts());
  EXPECT_EQ(report(), "Tarnel2OUTAppts -2147217864");
  EXPECT_EQ(items(), "");
}

TEST_F(CopyAppointmentsTest, aColourThatIsNoNumberStopsTheCopyBeforeAnythingIsWritten) {
  day().refreshDay();
  selectAll(tarnel());
  session().theDateFormats[dateFormat::apptColor].clear();
  EXPECT_FALSE(day().Tarnel2OUTAppts());
  EXPECT_EQ(report(), "Tarnel2OUTAppts 13");
  EXPECT_EQ(items() + links(), "A1|-\nA2|-\n");
}

}  // namespace
}  // namespace tarnel::test
