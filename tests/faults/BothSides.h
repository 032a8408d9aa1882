#pragma once

#include <filesystem>
#include <string>

#include "FakeDesktop.h"
#include "FaultyOutlook.h"
#include "FaultyParts.h"
#include "FixedClock.h"
#include "OutlookFactory.h"
#include "SqliteProvider.h"
#include "TempFolder.h"

namespace tarnel::test {

// A user's two stores with a row of each kind that the commands know, and the wizard on them with faults() in between.
//
//   tasks: Unlinked; Linked, with one item; Doubled, with two; Lost, whose item has gone; items: Own, Outlook's own
//   Task Appointments of 2026-11-19: New; Copied, with its item; calendar: Lunch, Outlook's own
class BothSides {
 public:
  // `statement` changes the task database first; empty for none.
  explicit BothSides(const std::string& statement);
  ~BothSides();

  // One whole run of the wizard. The lines are commands as "tarnel drive" takes them, the last of them the one with
  // the fault; the line "open" stands for the opening. What the user got to know of that one, a line each: reports,
  // messages, what escaped; then whether the wizard's window has gone.
  std::string run(const std::vector<std::string>& lines, std::size_t failingCall, Faults::Kind kind);

  // At the n-th time that waiting events run in the command the user does this; once, for the next run.
  void interrupt(int moment, std::string line) { moment_ = moment, interruption_ = std::move(line); }
  bool wasInterrupted() const { return moment_ == 0; }

  // All that counts of both sides as text, in an order of its own; new keys read as "new".
  std::string describe();
  // Empty, or what is wrong: a file that is damaged, an item that is linked to what is not its task.
  std::string damage();

 private:
  void fillMailbox();
  void install(ado::Provider& database, outlook::ClassFactory& outlook);
  void carryOut(Form& form, const std::string& line);
  void act(Form& form, const std::vector<std::string>& lines, std::size_t failingCall, Faults::Kind kind);
  std::string told();
  std::string folder(outlook::Application& user, outlook::DefaultFolder id);
  std::string connect() const { return "Data Source=" + database_.string() + ";"; }

  TempFolder folder_;
  std::filesystem::path database_ = folder_ / "Tasks.tarnel";
  std::filesystem::path mailbox_ = folder_ / "Outlook.mailbox";
  FixedClock clock_;
  FakeDesktop desktop_;
  FaultyRegistry registry_;
  FaultyUtilities utilities_;
  FaultyErrorReport report_;
  std::string escaped_;
  bool gone_ = false;
  int moment_ = 0;
  std::string interruption_;
};

// "ok", or the engine's complaint about the file.
std::string integrityOf(const std::filesystem::path& file);

}  // namespace tarnel::test
