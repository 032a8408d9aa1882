#include "AppointmentsFixture.h"
#include "CStringBag.h"
#include "DayQuery.h"
#include "Failure.h"
#include "MarkedRows.h"
#include "ScheduleRow.h"

namespace tarnel::test {
namespace {

using DaySchedulesTest = AppointmentsTest;

TEST_F(DaySchedulesTest, theDayIsOnBothSidesEachRowWithItsOwner) {
  addAppt("A2", "11/19/2026 14:00:00", "11/19/2026 13:30:00", "End before start");
  addAppt("A1", "11/19/2026 08:00:00", "11/19/2026 09:15:30", "Write");
  addAppt("A3", "11/18/2026 23:59:59", "11/19/2026 10:00:00", "Day before");
  addAppt("A4", "11/20/2026 00:00:00", "11/20/2026 01:00:00", "Next midnight");
  addAppt("A5", "11/19/2026 22:00:00", "11/20/2026 02:00:00", "Night");
  addEvent("Dentist", "20261119T100000", "20261119T110000", "High Street");
  addEvent("No property", "20261119T090000", "20261119T093000", "Tarnel");
  addEvent("Other case", "20261119T120000", "20261119T123000", "tarnel");
  day().refreshDay();
  EXPECT_EQ(rowsOf(tarnel()),
            "08:00-09:15 19 Write [2 0]\n14:00-13:30 19 End before start [2 0]\n22:00-02:00 20 Night [2 0]\n"
            "00:00-01:00 20 Next midnight [2 0]\n"
            "10:00-11:00 19 Dentist [1 0]\n12:00-12:30 19 Other case [1 0]\n");
  EXPECT_EQ(rowsOf(outlookSide()),
            "09:00-09:30 19 No property [2 0]\n10:00-11:00 19 Dentist [1 0]\n12:00-12:30 19 Other case [1 0]\n");

  const ctMDay::Appointment& appt = tarnel().appointment(1);
  EXPECT_EQ(appt.key + " " + appt.tag, "A1 A1");
  EXPECT_EQ(appt.color, 65280);
  EXPECT_TRUE(appt.flagA && appt.flagB);
  const ctMDay::Appointment& dentist = tarnel().appointment(5);
  EXPECT_EQ(dentist.color, 255);
  EXPECT_EQ(dentist.tag, outlookSide().appointment(2).tag);
  EXPECT_EQ(dentist.key + " " + dentist.tag,
            " TAG1=OUTLOOK\tTAG3=1\tTAG4=False\tTAG5=High Street\tTAG6=False\tTAG7=0\t"
            "TAG8=11/19/2026 10:00:00\tTAG9=False\tENTRYID=" +
                entryIdOf("Dentist") + "\t");
  EXPECT_EQ(outlookSide().appointment(1).color, 65280);
  EXPECT_EQ(CStringBag(outlookSide().AppTag(1)).ReadItem("BrackwellTarnelGUID"), "");
  EXPECT_EQ(session().theOutlookNS, nullptr);
  EXPECT_EQ(platform_.desktop.mousePointer(), MousePointer::standard);
}

TEST_F(DaySchedulesTest, anItemsTimesFollowTheMidnightsOfItsStartAndItsEnd) {
  addEvent({"SUMMARY:Fair", "DTSTART;VALUE=DATE:20261118", "DTEND;VALUE=DATE:20261121"});
  addEvent("From midnight", "20261119T000000", "20261119T013000");
  addEvent("To midnight", "20261119T220000", "20261120T000000");
  addEvent("Journey", "20261118T200000", "20261120T070000");
  addEvent("No time", "20261119T120000", "20261119T120000");
  addEvent("Over at midnight", "20261118T230000", "20261119T000000");
  addEvent("Just in", "20261119T235900", "20261120T003000");
  day().refreshDay();
  const ctMDay::Appointment& fair = outlookSide().appointment(1);
  EXPECT_EQ(fair.lastDay - fair.firstDay, 2);
  EXPECT_EQ(outlookSide().appointment(5).lastDay, outlookSide().appointment(5).date - 1) << "over at midnight";
  EXPECT_EQ(rowsOf(outlookSide()),
            "00:00-24:00 18 Fair all day [1 0]\n20:00-07:00 20 Journey [1 0]\n00:00-24:00 19 From midnight [1 0]\n"
            "12:00-12:00 19 No time [1 0]\n22:00-00:00 20 To midnight [1 0]\n23:59-00:30 20 Just in [1 0]\n");
}

TEST_F(DaySchedulesTest, aColourThatIsNoNumberLeavesOutlooksRowsPlain) {
  addEvent("Copy", "20261119T100000", "20261119T110000", "Tarnel");
  session().theDateFormats[dateFormat::apptColor] = "green";
  day().refreshDay();
  EXPECT_EQ(rowsOf(outlookSide()), "10:00-11:00 19 Copy [2 0]\n");
  EXPECT_EQ(outlookSide().appointment(1).color, rgb(255, 255, 255));
  EXPECT_EQ(report(), "0 reports");
}

TEST_F(DaySchedulesTest, aDayOfFiveThousandItemsIsShownWhole) {
  ado::Recordset rows;
  openBatch(rows, database_, "SELECT * FROM TASKAPPTS");
  std::string calendar = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:test\r\n";
  for (int i = 0; i < 5000; ++i) {
    rows.AddNew();
    rows.Fields("taGUIDID").setValue("A" + std::to_string(i));
    rows.Fields("taTaskDesc").setValue("Work");
    rows.Fields("taStartTime").setValue(Date::of(2026, 11, 19, 8, i % 60));
    rows.Fields("taEndTime").setValue(Date::of(2026, 11, 19, 9));
    calendar += "BEGIN:VEVENT\r\nUID:" + std::to_string(i) +
                "\r\nDTSTART:20261119T100000\r\nDTEND:20261119T110000\r\nEND:VEVENT\r\n";
  }
  rows.UpdateBatch();
  addEvents(calendar + "END:VCALENDAR\r\n", 5000);
  day().refreshDay();
  EXPECT_EQ(tarnel().AppCount(), 10000);
  EXPECT_EQ(outlookSide().AppCount(), 5000);
  EXPECT_EQ(report(), "0 reports");
}

TEST_F(DaySchedulesTest, aFullScheduleTellsHowManyItLeavesOutAndIsWorkedOnToItsEnd) {
  while (tarnel().AppCount() < ctMDay::mostAppointments - 2) tarnel().AppAdd(480, 540, 46345, "Work", "A");
  for (int i = 0; i < 5; ++i) addEvent("Dentist", "20261119T100000", "20261119T110000");
  EXPECT_TRUE(day().GetDisplayOutlookAppts(tarnel(), form_.formCurDate, form_.formCurDate));
  EXPECT_EQ(outlookSide().AppCount(), 5);
  EXPECT_EQ(
      platform_.desktop.messageTexts(),
      std::vector<std::string>{"This day has more appointments than can be shown. Shown are the first 32766, left "
                               "out: 3."});
  tarnel().setAppMarkImage(ctMDay::mostAppointments, apptPicture::check);
  EXPECT_EQ(MarkedRows(tarnel()).outlookCount, 1);
}

TEST_F(DaySchedulesTest, theStatementSpansTheDayToTheNextMidnight) {
  const Date evening = Date::of(2026, 11, 19, 17, 30);
  const auto span = [](const std::string& from, const std::string& to) {
    return "SELECT * from TaskAPPTS WHERE taStartTime >= #" + from + "# AND taStartTime <= #" + to +
           "#ORDER BY taStartTime";
  };
  EXPECT_EQ(dayQuery("currentdate", true, evening), span("11/19/2026 17:30:00", "11/20/2026 00:00:00"));
  EXPECT_EQ(dayQuery("TODAY", false, Date::of(1999, 1, 1)), span("11/19/2026 00:00:00", "11/20/2026 00:00:00"));
  EXPECT_EQ(dayQuery("02/03/2026", true, evening), span("02/03/2026 00:00:00", "02/09/2026 00:00:00"));
  EXPECT_EQ(dayQuery("2026-02-03", false, evening), span("02/03/2026 00:00:00", "02/04/2026 00:00:00"));
  EXPECT_THROW(dayQuery("TOMORROW", false, evening), Failure);
  EXPECT_FALSE(day().GetAppts("TOMORROW", false));
  EXPECT_EQ(report(), "GetAppts 13");
}

TEST_F(DaySchedulesTest, selectingAndTheBarsMarkAllButOutlooksRowsOfTheTarnelSide) {
  addAppt("A1", "11/19/2026 08:00:00", "11/19/2026 09:00:00");
  addEvent("Dentist", "20261119T100000", "20261119T110000");
  addEvent("Copy", "20261119T120000", "20261119T130000", "Tarnel");
  day().refreshDay();
  const std::string unmarked = "08:00-09:00 19 Work [2 0]\n10:00-11:00 19 Dentist [1 0]\n";
  const std::string marked = "08:00-09:00 19 Work [2 3]\n10:00-11:00 19 Dentist [1 0]\n";
  selectAll(tarnel());
  EXPECT_EQ(rowsOf(tarnel()), marked);
  EXPECT_EQ(tarnel().appointment(1).state, 99);
  tarnel().select(1);
  EXPECT_EQ(rowsOf(tarnel()), unmarked);
  EXPECT_EQ(tarnel().appointment(1).state, 1);

  EXPECT_TRUE(control<SmartUI>("smtApptActions(1)").Items().Item("UPDATE").Bold());
  press("smtApptActions(0)", "ALL");
  EXPECT_EQ(rowsOf(tarnel()), marked);
  EXPECT_EQ(tarnel().appointment(1).state, 1) << "the bars leave it as it was";
  EXPECT_EQ(outlookSide().AppMarkImage(1), 0);
  press("smtApptActions(1)", "ALL");
  press("smtApptActions(0)", "NONE");
  EXPECT_EQ(rowsOf(tarnel()), unmarked);
  EXPECT_EQ(rowsOf(outlookSide()), "10:00-11:00 19 Dentist [1 3]\n12:00-13:00 19 Copy [2 3]\n");
  press("smtApptActions(1)", "NONE");
  EXPECT_EQ(outlookSide().AppMarkImage(2), 0);
}

// What the bar shows as down, then bounds and minutes a row of both sides.
struct TimeBarTest : AppointmentsTest {
  std::string state() {
    std::string text;
    for (const SmartItem& item : control<SmartUI>("smtTimebarSizer").Items())
      if (item.Checked()) text += item.Key() + " ";
    for (const ctMDay* side : {&tarnel(), &outlookSide()})
      text += "| " + std::to_string(side->DayStart()) + "-" + std::to_string(side->DayEnd()) + " " +
              std::to_string(side->UseCustomScale()) + ":" + std::to_string(side->minutesPerRow()) + " ";
    return text;
  }
};

TEST_F(TimeBarTest, hostsChoiceIsShownAndUnknownTextsMeanTheWholeDay) {
  session().theTimeDisplay1 = "DAY";
  session().theTimeDisplay2 = "M20";
  tab_.SetCals();
  EXPECT_EQ(state(), "DAY M20 | 480-1020 1:20 | 480-1020 1:20 ");
  session().theTimeDisplay1 = "WEEK";
  session().theTimeDisplay2 = "m20";
  tab_.SetCals();
  EXPECT_EQ(state(), "ALL M60 | 0-1439 0:60 | 0-1439 0:60 ");
}

TEST_F(TimeBarTest, aClickChangesItsGroupOnBothSidesAndNothingElse) {
  tab_.SetCals();
  const std::string minutes[] = {"60", "30", "20", "15", "10", "5", "1"};
  for (const std::string& length : minutes) {
    press("smtTimebarSizer", "M" + length);
    const std::string scale = (length == "20" || length == "1" ? " 1:" : " 0:") + length + " ";
    EXPECT_EQ(state(), "ALL M" + length + " | 0-1439" + scale + "| 0-1439" + scale);
  }
  press("smtTimebarSizer", "DAY");
  press("smtTimebarSizer", "DAY");
  EXPECT_EQ(state(), "DAY M1 | 480-1020 1:1 | 480-1020 1:1 ");
  EXPECT_EQ(session().theTimeDisplay1, "");
}

}  // namespace
}  // namespace tarnel::test
