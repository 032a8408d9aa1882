#include <cstdlib>

#include "Story.h"

namespace tarnel::test {
namespace {

// The second tab, from one call of the program to the next.
struct AppointmentStories : Story {
  // Times as "2026-11-19 09:00", within the day shown where they say no day.
  void addAppt(const std::string& key, const std::string& text, const std::string& start, const std::string& end) {
    change("INSERT INTO TASKAPPTS (taGUIDID, taTaskDesc, taStartTime, taEndTime) VALUES ('" + key + "', '" + text +
           "', '" + start + ":00', '" + end + ":00')");
  }
  // The lines are iCalendar's.
  void addEvent(const std::string& subject, const std::string& lines) {
    import("BEGIN:VEVENT\r\nUID:event" + subject + "\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:" + subject + "\r\n" +
           lines + "\r\nEND:VEVENT\r\n");
  }
  std::string toldOnTab(const std::string& commands) const { return told("tab 1\n" + commands); }
  // folder|subject|start|end|location|GUID of each item, none as "-".
  std::string calendar() const {
    std::string text;
    for (const auto& item : items())
      text += std::string(item["folder"]) + "|" + std::string(item["subject"]) + "|" +
              std::string(item["start"]).substr(0, 16) + "|" + std::string(item["end"]).substr(0, 16) + "|" +
              item.value("location", "") + "|" + item["userProperties"].value("BrackwellTarnelGUID", "-") + "\n";
    return text;
  }
  // start-end text, one row a line.
  static std::string rowsOf(const nlohmann::json& sked) {
    std::string text;
    for (const auto& row : sked["rows"])
      text += row["start"].dump() + "-" + row["end"].dump() + " " + std::string(row["text"]) + "\n";
    return text;
  }
  std::string shown(const std::string& side, const std::string& day) const {
    return rowsOf(drive("tab 1\ndate " + day + "\nsked " + side + "\n").reply("sked"));
  }
  std::string links() { return rows("SELECT taGUIDID, taOutlookEntryID FROM TASKAPPTS ORDER BY taGUIDID"); }
};

const std::string all = "click smtApptActions(0) ALL\n";
const std::string copyAll = all + "click smtApptActions(0) UPDATE\n";
const std::string original = "Calendar|Write|2026-11-19 09:00|2026-11-19 10:00|Tarnel|A\n";

TEST_F(AppointmentStories, copyMakesAnItemAndLaterCopiesWriteOverIt) {
  addAppt("A", "Write", "2026-11-19 09:00", "2026-11-19 10:00");
  addAppt("B", "Not marked", "2026-11-19 11:00", "2026-11-19 12:00");
  const auto copied = drive("tab 1\nselect 0 1\nclick smtApptActions(0) UPDATE\nsked 1\n");
  EXPECT_EQ(told(copied), "returned\n");
  EXPECT_EQ(calendar() + links(), original + "A|A\nB|-\n");
  const auto row = copied.reply("sked")["rows"][0];
  EXPECT_EQ(row["tag"], "ENTRYID=" + std::string(row["key"]) + "\tBRACKWELLTARNELGUID=A\t");
  EXPECT_EQ(row["key"], entryOf("Write"));
  EXPECT_EQ(row["color"], 11791615);
  change("UPDATE TASKAPPTS SET taTaskDesc = 'Rewrite', taEndTime = '2026-11-20 01:30:00' WHERE taGUIDID = 'A'");
  EXPECT_EQ(toldOnTab("select 0 1\nclick smtApptActions(1) UPDATE\n"), "returned\n");
  EXPECT_EQ(calendar() + links(), "Calendar|Rewrite|2026-11-19 09:00|2026-11-20 01:30|Tarnel|A\nA|A\nB|-\n");
}

TEST_F(AppointmentStories, itemThatIsNoCopyOfTheDayAnyMoreIsMadeAgain) {
  const struct {
    const char* what;
    std::function<void()> change;
    std::string first;
    std::string second;
    const char* day;
  } changes[] = {
      {"deleted in Outlook", [&] { run("mailbox delete " + entryOf("Write")); }, "Deleted Items" + original.substr(8),
       original, "2026-11-19"},
      {"moved to another day",
       [&] { change("UPDATE TASKAPPTS SET taStartTime = '2026-11-21 09:00:00', taEndTime = '2026-11-21 10:00:00'"); },
       original, "Calendar|Write|2026-11-21 09:00|2026-11-21 10:00|Tarnel|A\n", "2026-11-21"},
      {"another location",
       [&] {
         run("mailbox export out.ics");
         std::string text = contentsOf(run.home / "out.ics");
         text.replace(text.find("LOCATION:Tarnel"), 15, "LOCATION:Room 5");
         run.home.write("out.ics", text);
         EXPECT_EQ(run("mailbox import out.ics").output, "0 added, 1 updated, 0 unchanged, 0 skipped\n");
       },
       "Calendar|Write|2026-11-19 09:00|2026-11-19 10:00|Room 5|A\n", original, "2026-11-19"},
  };
  for (const auto& each : changes) {
    addAppt("A", "Write", "2026-11-19 09:00", "2026-11-19 10:00");
    toldOnTab(copyAll);
    each.change();
    EXPECT_EQ(toldOnTab("date " + std::string(each.day) + "\n" + copyAll), "returned\n") << each.what;
    EXPECT_EQ(calendar(), each.first + each.second) << each.what;
    change("DELETE FROM TASKAPPTS");
    for (int i = 0; i < 2; ++i)  // first into Deleted Items, then for good
      for (const auto& item : items()) run("mailbox delete " + std::string(item["entryId"]));
  }
}

TEST_F(AppointmentStories, deleteAsksByKindAndLeavesSeriesAlone) {
  const std::string dentist = "|Dentist|2026-11-19 12:00|2026-11-19 13:00||-\n";
  const std::string standUp = "|Stand-up|2026-11-02 09:15|2026-11-02 09:30||-\n";
  const std::string copy = original.substr(8), gone = "Deleted Items", kept = "Calendar";
  const struct {
    const char* side;
    const char* marks;
    std::string question;
    std::string items;
    const char* links;
  } deletions[] = {
      {"1", "select 1 2\n",
       "One Outlook Appointment selected. Unless it is a recurring Appointment, it will be deleted in Outlook and "
       "therefore will not appear in Tarnel.//",
       kept + copy + kept + dentist + kept + standUp, "A|A\nB|-\n"},
      {"1", "click smtApptActions(1) ALL\n",
       "Outlook Appointments selected: 2 . These will be deleted (unless they are recurring Appointments) in Outlook "
       "and therefore will not appear in Tarnel.//One Task Appointment selected. It will be deleted from Outlook but "
       "not from Tarnel.//",
       gone + copy + gone + dentist + kept + standUp, "A|-\nB|-\n"},
      {"0", "select 0 1\n",
       "One Task Appointment selected. It will be deleted from Tarnel and Outlook if it exists there.//",
       gone + copy + kept + dentist + kept + standUp, "B|-\n"},
      {"0", "click smtApptActions(0) ALL\n",
       "Task Appointments selected: 2 . They will be deleted from Tarnel and Outlook if they exist there.//",
       gone + copy + kept + dentist + kept + standUp, ""},
  };
  for (const auto& deletion : deletions) {
    addAppt("A", "Write", "2026-11-19 09:00", "2026-11-19 10:00");
    toldOnTab(copyAll);
    addAppt("B", "Own", "2026-11-19 15:00", "2026-11-19 16:00");
    addEvent("Dentist", "DTSTART:20261119T120000\r\nDTEND:20261119T130000");
    addEvent("Stand-up", "DTSTART:20261102T091500\r\nDTEND:20261102T093000\r\nRRULE:FREQ=DAILY");
    const std::string press = "click smtApptActions(" + std::string(deletion.side) + ") DELETE\n";
    const std::string asked = "asks: " + deletion.question + "Proceed? ";
    EXPECT_EQ(toldOnTab("answer no\nanswer yes\n" + (deletion.marks + press) + press),
              asked + "no\n" + asked + "yes\nreturned\n");
    EXPECT_EQ(calendar() + links(), deletion.items + deletion.links) << deletion.question;
    EXPECT_NE(shown("1", "2026-11-19").find("555-570 Stand-up\n"), std::string::npos) << deletion.question;
    change("DELETE FROM TASKAPPTS");
    std::filesystem::remove(run.home / mailboxFile);
  }
}

TEST_F(AppointmentStories, outlookOutOfReachLeavesItsSideAsItWasAndComesBack) {
  addAppt("A", "Write", "2026-11-19 09:00", "2026-11-19 10:00");
  addAppt("B", "Next day", "2026-11-20 09:00", "2026-11-20 10:00");
  addEvent("Dentist", "DTSTART:20261119T120000\r\nDTEND:20261119T130000");
  OpenWizard wizard(run.shellCommand(drivingArguments));
  wizard("tab 1");
  std::filesystem::rename(run.home / mailboxFile, run.home / "away");
  const std::string toldGone = told(wizard("date 2026-11-20"));
  EXPECT_NE(toldGone.find("says: Unable to access Outlook. Outlook may be busy"), std::string::npos) << toldGone;
  EXPECT_EQ(rowsOf(wizard("sked 0").back()), "540-600 Next day\n");
  EXPECT_EQ(rowsOf(wizard("sked 1").back()), "720-780 Dentist\n");
  std::filesystem::rename(run.home / "away", run.home / mailboxFile);
  EXPECT_EQ(told(wizard("date 2026-11-19")), "");
  EXPECT_EQ(rowsOf(wizard("sked 0").back()), "540-600 Write\n720-780 Dentist\n");
}

// In Berlin 02:00 to 03:00 is skipped on 2026-03-29 and comes twice on 2026-10-25.
struct ClockChange : AppointmentStories {
  ClockChange() { setenv("TZ", "Europe/Berlin", 1); }
  ~ClockChange() override { unsetenv("TZ"); }
};

TEST_F(ClockChange, wallTimesStayWhatPeopleEntered) {
  addEvent("Daily", "DTSTART;TZID=Europe/Berlin:20260301T090000\r\nDURATION:PT1H\r\nRRULE:FREQ=DAILY");
  const struct {
    std::string day;
    std::string fromUtc;      // 00:30 and 01:30 in UTC
    std::string fromNewYork;  // 09:00 there
  } changes[] = {{"2026-03-29", "90-210 UTC", "900-960 NY"}, {"2026-10-25", "150-150 UTC", "840-900 NY"}};
  for (const auto& each : changes) {
    std::string plain = each.day;
    std::erase(plain, '-');
    addAppt("S" + plain, "Sleep", each.day + " 02:00", each.day + " 02:45");
    addAppt("W" + plain, "Watch", each.day + " 01:30", each.day + " 03:30");
    addEvent("Entered" + plain,
             "DTSTART;TZID=Europe/Berlin:" + plain + "T021500\r\nDTEND;TZID=Europe/Berlin:" + plain + "T023000");
    addEvent("Floating" + plain, "DTSTART:" + plain + "T022000\r\nDTEND:" + plain + "T031000");
    addEvent("UTC", "DTSTART:" + plain + "T003000Z\r\nDTEND:" + plain + "T013000Z");
    addEvent("NY", "DTSTART;TZID=America/New_York:" + plain + "T090000\r\nDURATION:PT1H");
    EXPECT_EQ(toldOnTab("date " + each.day + "\n" + copyAll), "returned\n");
    EXPECT_EQ(rows("SELECT taStartTime, taEndTime FROM TASKAPPTS WHERE taGUIDID = 'S" + plain + "'"),
              each.day + " 02:00:00|" + each.day + " 02:45:00\n");
    const bool spring = each.day == "2026-03-29";
    EXPECT_EQ(shown("1", each.day), std::string(spring ? each.fromUtc + "\n90-210 Watch\n" : "90-210 Watch\n") +
                                        "120-165 Sleep\n135-150 Entered" + plain + "\n140-190 Floating" + plain + "\n" +
                                        (spring ? "" : each.fromUtc + "\n") + "540-600 Daily\n" + each.fromNewYork +
                                        "\n");
    EXPECT_EQ(shown("0", each.day).substr(0, 27), "90-210 Watch\n120-165 Sleep\n");
    // Out of the file and into another mailbox, nothing moves.
    EXPECT_EQ(run("mailbox export out.ics").exitCode, 0);
    run("mailbox import out.ics --mailbox other.mailbox");
    EXPECT_EQ(
        rowsOf(run("drive --database tasks.db --mailbox other.mailbox --date " + each.day, "sked 1\n").reply("sked")),
        shown("1", each.day));
  }
}

TEST_F(AppointmentStories, badRowsAndSettingsAreToldAndNothingIsHalfDone) {
  const struct {
    std::string change;
    const char* told;
  } bad[] = {
      {"UPDATE TASKAPPTS SET taTaskDesc = Null", "reports: DisplayTaskAppts 94\n"},
      {"UPDATE TASKAPPTS SET taEndTime = Null", "reports: DisplayTaskAppts 94\n"},
      {"UPDATE TASKAPPTS SET taEndTime = '2026-11-19 08:00:00'", "reports: Tarnel2OUTAppts 13\n"},
      {setting("ApptColor", "green"), "reports: DisplayTaskAppts 13\n"},
      {setting("ApptOutlook", ""), "reports: loadMySettings 13\n"},
  };
  for (const auto& each : bad) {
    change("DELETE FROM TASKAPPTS");
    addAppt("A", "Write", "2026-11-19 09:00", "2026-11-19 10:00");
    change(each.change);
    const auto result = drive("tab 1\n" + copyAll);
    EXPECT_EQ(told(result).substr(0, std::string(each.told).size()), each.told) << each.change << told(result);
    EXPECT_EQ(result.exitCode, 1) << each.change;
    if (told(result).starts_with("reports: DisplayTaskAppts")) {
      EXPECT_NE(result.output.find("(Task Appointment A, start 2026-11-19 09:00:00)"), std::string::npos);
    }
    EXPECT_EQ(calendar(), "") << each.change;
    set("ApptColor", "255");
  }
}

}  // namespace
}  // namespace tarnel::test
