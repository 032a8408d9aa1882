#pragma once

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include "CommandWords.h"
#include "Conversions.h"
#include "FakeDesktop.h"
#include "FaultyOutlook.h"
#include "FaultyParts.h"
#include "FixedClock.h"
#include "FormCommands.h"
#include "MailboxFile.h"
#include "OutlookFactory.h"
#include "SqliteProvider.h"
#include "Story.h"
#include "TaskDatabaseScript.h"
#include "TempFolder.h"
#include "clsTarnelOutWizard.h"
#include "createDatabase.h"
#include "m_OutlookWizard.h"

namespace tarnel::test {

// A user's two stores with a row of each kind that the commands know, and the wizard on them with faults() in between.
//
//   tasks: Unlinked; Linked, with one item; Doubled, with two; Lost, whose item has gone; items: Own, Outlook's own
//   Task Appointments of 2026-11-19: New; Copied, with its item; calendar: Lunch, Outlook's own
class BothSides {
 public:
  // `statement` changes the task database first; empty for none.
  explicit BothSides(const std::string& statement) {
    // The stores are made once and copied, since there are thousands of runs.
    static const TempFolder patterns;
    if (!std::filesystem::exists(patterns / "database")) {
      sqlite::createDatabase(patterns / "database", host::taskDatabaseScript() + contents);
      mailbox::createMailbox(mailbox_);
      fillMailbox();
      std::filesystem::copy_file(mailbox_, patterns / "mailbox");
    } else {
      std::filesystem::copy_file(patterns / "mailbox", mailbox_);
    }
    std::filesystem::copy_file(patterns / "database", database_);
    if (!statement.empty()) sqlite::SqliteProvider().open(connect())->execute(statement);
    registry_.createKey(
        "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows Messaging "
        "Subsystem\\Profiles\\Mine");
  }
  ~BothSides() {
    session() = SessionState{};
    removePlatform();
  }

  // One whole run of the wizard. The lines are commands as "tarnel drive" takes them, the last of them the one with
  // the fault; the line "open" is the opening. What the user got to know of that one, a line each: reports,
  // messages, what escaped; then whether the wizard's window has gone.
  std::string run(const std::vector<std::string>& lines, std::size_t failingCall, Faults::Kind kind) {
    desktop_ = FakeDesktop();
    report_.reports.clear();
    escaped_.clear();
    gone_ = true;
    session() = SessionState{};
    sqlite::SqliteProvider provider;
    FaultyDatabase database(provider);
    mailbox::OutlookFactory factory(noProfile, mailbox_, Locale{}, clock_);
    FaultyOutlook outlook(factory);
    install(database, outlook);

    desktop_.answers.assign(8, MessageAnswer::yes);
    desktop_.onModal = [&](Form& form) {
      if (form.Name() == "frmOutWiz") act(form, lines, failingCall, kind);
    };
    if (lines.back() == "open") faults().arm(failingCall, kind);
    try {
      clsTarnelOutWizard().Setup(false, "ALL", "M60", connect());
    } catch (const std::exception& error) {
      escaped_ += std::string("Setup lets out: ") + error.what() + "\n";
    }
    faults().disarm();
    std::string text = told();
    // By the rules a command that failed leaves its session attached until the next one.
    session() = SessionState{};
    if (HeldObject::count != 0) text += std::to_string(HeldObject::count) + " objects of Outlook are still held\n";
    if (!openForms().empty()) text += "a form is left open\n";
    return text;
  }

  // At the n-th time that waiting events run in the command the user does this; once, for the next run.
  void interrupt(int moment, std::string line) { moment_ = moment, interruption_ = std::move(line); }
  bool wasInterrupted() const { return moment_ == 0; }

  // All that counts of both sides as text, in an order of its own; new keys read as "new".
  std::string describe() {
    sqlite::SqliteProvider provider;
    const auto database = provider.open(connect());
    const auto rows = [&](const std::string& select) {
      std::vector<std::string> lines;
      for (const ado::Row& row : database->query(select).rows) {
        std::string line;
        for (const Variant& value : row) line += " " + (value.isNull() ? "-" : known(toText(value)));
        lines.push_back(line);
      }
      return sorted(lines);
    };
    std::string text = "Tasks:\n" + rows("SELECT tskGUIDID, tskDesc, tskStatus, tskOUTEntityID FROM TASKS");
    text += "Task Appointments:\n" + rows("SELECT taGUIDID, taTaskDesc, taOutlookEntryID FROM TASKAPPTS");
    text += "Keywords:\n" + rows("SELECT ktTASKGUID FROM TASKKEYWORDS");
    text += "Modes:\n" + rows(
                             "SELECT SetSettingName, SetSettingValue FROM Settings WHERE SetSettingName IN "
                             "('OutTaskSetting', 'OutApptSetting')");
    mailbox::OutlookFactory factory(noProfile, mailbox_, Locale{}, clock_);
    const auto user = factory.createApplication();
    user->GetNamespace("MAPI")->Logon();
    text += "Outlook tasks:\n" + folder(*user, outlook::DefaultFolder::tasks);
    return text + "Calendar:\n" + folder(*user, outlook::DefaultFolder::calendar);
  }
  // Empty, or what is wrong: a file that is damaged, an item that is linked to what is not its task.
  std::string damage() {
    std::string text;
    for (const auto& file : {database_, mailbox_})
      if (const std::string answer = integrityOf(file); answer != "ok") text += file.string() + ": " + answer + "\n";
    // Every item that bears a key has the words of that key's row, and nobody's words have changed.
    static const std::set<std::string> sound{"Linked of L", "Linked done of L", "Doubled of D",  "Doubled done of D",
                                             "Lost of G",   "Lost done of G",   "Unlinked of U", "Unlinked done of U",
                                             "Own",         "Own done",         "Own of new",    "Own done of new",
                                             "Copied of C", "New of N",         "Lunch"};
    std::istringstream lines(describe());
    bool items = false;
    for (std::string line; std::getline(lines, line);) {
      if (line.ends_with(":"))
        items = line == "Outlook tasks:" || line == "Calendar:";
      else if (items && !sound.contains(line))
        text += "An item that can't be: " + line + "\n";
    }
    return text;
  }

 private:
  static constexpr const char* linkProperty = "BrackwellTarnelGUID";
  static constexpr const char* contents = R"sql(
INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('P1', 'Garden');
INSERT INTO TASKS (tskGUIDID, tskDesc, tskCurrent, tskDeadline, tskOUTEntityID) VALUES
  ('U', 'Unlinked', 1, '2026-12-01 00:00:00', NULL), ('L', 'Linked', 1, NULL, 'L'), ('D', 'Doubled', 1, NULL, 'D'),
  ('G', 'Lost', 1, NULL, 'G');
INSERT INTO TASKKEYWORDS (ktTASKGUID, ktKeyword) VALUES ('L', 'word'), ('U', 'word');
INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taTaskDesc, taStartTime, taEndTime, taOutlookEntryID) VALUES
  ('N', 'L', 'New', '2026-11-19 09:00:00', '2026-11-19 10:00:00', NULL),
  ('C', 'U', 'Copied', '2026-11-19 11:00:00', '2026-11-19 12:00:00', 'C');
)sql";

  static std::optional<std::filesystem::path> noProfile(const std::string&) { return {}; }
  static void make(outlook::Application& user, outlook::ItemType type, const std::string& subject,
                   const std::string& link) {
    const auto item = user.CreateItem(type);
    item->setSubject(subject);
    if (!link.empty()) item->UserProperties()->Add(linkProperty, outlook::PropertyType::text)->setValue(link);
    if (type == outlook::ItemType::appointment) {
      const auto appointment = outlook::asAppointment(item);
      appointment->setStart(Date::of(2026, 11, 19, 11, 0));
      appointment->setDuration(60);
      appointment->setLocation(link.empty() ? "Canteen" : "Tarnel");
    }
    item->Save();
  }
  static std::string sorted(std::vector<std::string> lines) {
    std::sort(lines.begin(), lines.end());
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    return text;
  }
  // Keys that a run made differ each time.
  static std::string known(const std::string& key) { return key.size() == 36 ? "new" : key; }

  void fillMailbox() {
    mailbox::OutlookFactory factory(noProfile, mailbox_, Locale{}, clock_);
    const auto user = factory.createApplication();
    user->GetNamespace("MAPI")->Logon();
    using enum outlook::ItemType;
    for (const auto& [subject, link] :
         std::map<std::string, std::string>{{"Linked", "L"}, {"Doubled", "D"}, {"Own", ""}})
      make(*user, task, subject, link);
    make(*user, task, "Doubled", "D");
    make(*user, appointment, "Copied", "C");
    make(*user, appointment, "Lunch", "");
  }
  void install(ado::Provider& database, outlook::ClassFactory& outlook) {
    installPlatform({desktop_, clock_, Locale{}, registry_, database, outlook, report_, utilities_, folder_.path()});
  }
  void carryOut(Form& form, const std::string& line) {
    try {
      if (line != "open" && form.isLoaded()) script::runCommand(form, *script::commandWords(line));
    } catch (const script::CommandError&) {
      // A user couldn't have done it either.
    } catch (const std::exception& error) {
      escaped_ += line + " lets out: " + error.what() + "\n";
    }
  }
  void act(Form& form, const std::vector<std::string>& lines, std::size_t failingCall, Faults::Kind kind) {
    for (const std::string& line : lines) {
      if (&line == &lines.back() && line != "open") {
        desktop_.messages.clear();
        desktop_.onEvents = [&] {
          if (moment_ > 0 && --moment_ == 0) carryOut(form, interruption_);
        };
        faults().arm(failingCall, kind);
      }
      carryOut(form, line);
    }
    faults().disarm();
    desktop_.onEvents = nullptr;
    gone_ = !form.isLoaded();
    form.unload();
  }
  std::string told() {
    std::string text;
    for (const FailureReport& report : report_.reports)
      text += "reports " + report.procedure + " " + std::to_string(report.number) + "\n";
    for (const Message& message : desktop_.messages)
      if (message.buttons == MessageButtons::ok) text += "says " + message.text.substr(0, 40) + "\n";
    return text + escaped_ + (gone_ ? "gone\n" : "open\n");
  }
  std::string folder(outlook::Application& user, outlook::DefaultFolder id) {
    const auto items = user.Session()->GetDefaultFolder(id)->items();
    std::vector<std::string> lines;
    for (std::int32_t i = 1; i <= items->Count(); ++i) {
      const auto item = items->Item(i);
      const auto link = item->UserProperties()->Item(linkProperty);
      const auto task = std::dynamic_pointer_cast<outlook::TaskItem>(item);
      lines.push_back(item->subject() + (task && task->Status() == outlook::TaskStatus::complete ? " done" : "") +
                      (link ? " of " + known(textOrEmpty(link->Value())) : ""));
    }
    return sorted(lines);
  }
  std::string connect() const { return "Data Source=" + database_.string() + ";"; }

  TempFolder folder_;
  std::filesystem::path database_ = folder_ / "Tasks.tarnel";
  std::filesystem::path mailbox_ = folder_ / "Outlook.mailbox";
  FixedClock clock_;
  FakeDesktop desktop_;
  FaultyRegistry registry_{folder_ / "registry"};
  FaultyUtilities utilities_;
  FaultyErrorReport report_;
  std::string escaped_;
  bool gone_ = false;
  int moment_ = 0;
  std::string interruption_;
};

}  // namespace tarnel::test
