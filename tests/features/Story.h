#pragma once

#include <gtest/gtest.h>

#include <map>
#include <optional>

#include "ChildProcess.h"
#include "ProgramRun.h"
#include "SqliteProvider.h"

namespace tarnel::test {

// A user with an empty task database and an empty mailbox, who works with the built program alone. What is told of a
// run and of both stores is compared as text.
class Story : public testing::Test {
 protected:
  using Columns = std::map<std::string, std::string>;

  Story();

  // The wizard from its opening to the end of the commands.
  ProgramResult drive(const std::string& commands) const { return run(drivingArguments, commands); }
  // All facts but replies, one a line.
  static std::string told(const std::vector<nlohmann::json>& facts);
  static std::string told(const ProgramResult& result) { return told(result.facts()); }
  std::string told(const std::string& commands) const { return told(drive(commands)); }
  // caption|picture of each row of a task list, behind these commands.
  std::string listed(const std::string& side, const std::string& commands = {}) const;

  // The task database: Jet's SQL, one statement; the rows of a SELECT, values by "|", Null as "-".
  void change(const std::string& statement);
  std::string rows(const std::string& select);
  std::string wholeDatabase();
  // A current open task; the columns' values are written as in SQL.
  void addTask(const std::string& key, const std::string& description, const Columns& columns = {});

  // A task of Outlook's own, linked when it has the property; the further lines are iCalendar's.
  void addItem(const std::string& subject, const std::optional<std::string>& guid = {}, const std::string& lines = {});
  // Components of a calendar file, such as a whole VEVENT.
  void import(const std::string& components);
  std::vector<nlohmann::json> items() const;
  // folder|subject|status|GUID of each item, none as "-".
  std::string mailbox() const;
  std::string entryOf(const std::string& subject) const;

  static constexpr const char* drivingArguments = "drive --database tasks.db --date 2026-11-19";
  const std::string mailboxFile = "tarnel/Outlook.mailbox";
  ProgramRun run;

 private:
  std::shared_ptr<ado::Session> open();

  sqlite::SqliteProvider provider_;
  int imported_ = 0;
};

// Presses ALL and then a command under a task list.
std::string onAll(const std::string& side, const std::string& action);
inline const std::string pickAll = "choose smtSkedPickTasks TASKPICK Tarnel\n";

// The wizard while it stands open: one command after the other, with the world changing in between.
class OpenWizard {
 public:
  explicit OpenWizard(const std::string& shellCommand) : program_(shellCommand) {}

  // The facts up to the command's own reply, or to the end.
  std::vector<nlohmann::json> operator()(const std::string& command);

 private:
  ChildProcess program_;
};

}  // namespace tarnel::test
