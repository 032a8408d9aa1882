#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <map>
#include <optional>
#include <set>
#include <sstream>

#include "ChildProcess.h"
#include "ProgramRun.h"
#include "SqliteProvider.h"
#include "TaskDatabase.h"

namespace tarnel::test {

using nlohmann::json;

// "ok", or the engine's complaint about the file.
inline std::string integrityOf(const std::filesystem::path& file) {
  sqlite3* database = nullptr;
  std::string answer = "could not be opened";
  if (sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK) {
    sqlite3_busy_timeout(database, 10000);  // a program that was killed may still be going
    char* error = nullptr;
    const auto keep = [](void* text, int, char** values, char**) {
      *static_cast<std::string*>(text) = values[0];
      return 0;
    };
    if (sqlite3_exec(database, "PRAGMA integrity_check", keep, &answer, &error) != SQLITE_OK) answer = error;
    sqlite3_free(error);
  }
  sqlite3_close(database);
  return answer;
}

// A user with an empty task database and an empty mailbox, who works with the built program alone. What is told of a
// run and of both stores is compared as text.
struct Story : testing::Test {
  Story() {
    EXPECT_EQ(run("new tasks.db").exitCode, 0);
    import("");
  }

  // The wizard from its opening to the end of the commands.
  ProgramResult drive(const std::string& commands) const { return run(drivingArguments, commands); }
  // All facts but replies, one a line.
  static std::string told(const std::vector<json>& facts) {
    std::string text;
    for (const json& fact : facts)
      if (!fact.contains("reply")) text += toldOf(fact) + "\n";
    return text;
  }
  static std::string told(const ProgramResult& result) { return told(result.facts()); }
  std::string told(const std::string& commands) const { return told(drive(commands)); }
  // caption|picture of each row of a task list, after these commands.
  std::string listed(const std::string& side, const std::string& commands = {}) const {
    std::string text;
    const json list = drive(commands + "list smtTaskList(" + side + ")\n").reply("list");
    for (const json& row : list["items"])
      text += std::string(row["caption"]) + "|" + std::string(row["picture"]) + "\n";
    return text;
  }

  // The task database: Jet's SQL, one statement; the rows of a SELECT, values by "|", Null as "-".
  void change(const std::string& statement) { open()->execute(statement); }
  std::string rows(const std::string& select) { return describe(*open(), select); }
  std::string wholeDatabase() {
    std::string text;
    for (const char* table : {"TASKS", "TASKAPPTS", "TASKKEYWORDS", "PROJECTS", "Settings"})
      if (rows("SELECT name FROM sqlite_master WHERE name='" + std::string(table) + "'") != "")
        text += rows("SELECT * FROM " + std::string(table));
    return text;
  }
  // A value of the settings, ended by a line end, and what changes one.
  std::string setting(const std::string& name) {
    return rows("SELECT SetSettingValue FROM Settings WHERE SetSettingName = '" + name + "'");
  }
  void set(const std::string& name, const std::string& value) { change(setting(name, value)); }
  static std::string setting(const std::string& name, const std::string& value) {
    return "UPDATE Settings SET SetSettingValue = '" + value + "' WHERE SetSettingName = '" + name + "'";
  }
  // Current tasks "Task K1" and so on, under the keys "K1" and so on.
  void addTasks(int count, bool current = true) {
    change("INSERT INTO TASKS (tskGUIDID, tskDesc, tskCurrent) SELECT 'K' & n, 'Task K' & n, " +
           std::string(current ? "1" : "0") +
           " FROM (WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c WHERE n < " + std::to_string(count) +
           ") SELECT n FROM c)");
  }
  // What must hold at every moment: both files are sound, an item's task is there and marked, none is doubled.
  struct Stock {
    std::size_t tasks = 0, linked = 0;
  };
  Stock soundStock(const std::string& place) {
    for (const auto& file : {run.home / "tasks.db", run.home / mailboxFile})
      EXPECT_EQ(integrityOf(file), "ok") << place;
    std::map<std::string, std::string> marks;
    std::istringstream tasks(rows("SELECT tskGUIDID, tskOUTEntityID FROM TASKS"));
    for (std::string line; std::getline(tasks, line);)
      marks[line.substr(0, line.find('|'))] = line.substr(line.find('|') + 1);
    std::set<std::string> linked;
    for (const json& item : items()) {
      const std::string guid = item["userProperties"].value("BrackwellTarnelGUID", "");
      if (item["folder"] != "Tasks" || guid.empty()) continue;
      EXPECT_EQ(item["subject"], "Task " + guid) << place;
      EXPECT_EQ(marks[guid], guid) << place;
      EXPECT_TRUE(linked.insert(guid).second) << place << ": " << guid << " is doubled";
    }
    return {marks.size(), linked.size()};
  }
  void addTask(const std::string& key, const std::string& description, const Columns& columns = {}) {
    change(insertTask(key, description, columns));
  }

  // A task of Outlook's own, linked when it has the property; the further lines are iCalendar's.
  void addItem(const std::string& subject, const std::optional<std::string>& guid = {}, const std::string& lines = {}) {
    const std::string property =
        guid ? "X-TARNEL-USER-PROPERTY;X-NAME=\"BrackwellTarnelGUID\":" + *guid + "\r\n" : std::string();
    import("BEGIN:VTODO\r\nUID:item" + std::to_string(++imported_) +
           "\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:" + subject + "\r\n" + property + lines + "END:VTODO\r\n");
  }
  // Components of a calendar file, such as a whole VEVENT.
  void import(const std::string& components) {
    run.home.write("in.ics", "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:x\r\n" + components + "END:VCALENDAR\r\n");
    const ProgramResult result = run("mailbox import in.ics");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
  }
  std::vector<json> items() const { return json::parse(run("mailbox list --json").output); }
  // folder|subject|status|GUID of each item, none as "-".
  std::string mailbox() const {
    std::string text;
    for (const json& item : items())
      text += std::string(item["folder"]) + "|" + std::string(item["subject"]) + "|" + item["status"].dump() + "|" +
              item["userProperties"].value("BrackwellTarnelGUID", "-") + "\n";
    return text;
  }
  std::string entryOf(const std::string& subject) const {
    for (const json& item : items())
      if (item["subject"] == subject) return item["entryId"];
    ADD_FAILURE() << "No item " << subject << " in " << mailbox();
    return {};
  }

  static constexpr const char* drivingArguments = "drive --database tasks.db --date 2026-11-19";
  const std::string mailboxFile = "tarnel/Outlook.mailbox";
  ProgramRun run;

 private:
  static std::string onOneLine(std::string text) {
    for (std::size_t at = 0; (at = text.find("\r\n", at)) != std::string::npos;) text.replace(at, 2, "/");
    return text;
  }

  static std::string toldOf(const json& fact) {
    if (fact.contains("message")) return "says: " + onOneLine(fact["message"]["text"]);
    if (fact.contains("question"))
      return "asks: " + onOneLine(fact["question"]["text"]) + " " + std::string(fact["question"]["answer"]);
    if (fact.contains("report"))
      return "reports: " + std::string(fact["report"]["procedure"]) + " " + fact["report"]["number"].dump();
    if (fact.contains("returned")) return fact["returned"] ? "returned" : "failed";
    if (fact.contains("error")) return "error: " + std::string(fact["command"]);
    std::string text = "event: " + std::string(fact["event"]);
    for (const auto& [name, value] : fact.items())
      if (name != "event") text += " " + name + "=" + value.dump();
    return text;
  }
  std::shared_ptr<ado::Session> open() {
    return provider_.open("Data Source=\"" + (run.home / "tasks.db").string() + "\";");
  }

  sqlite::SqliteProvider provider_;
  int imported_ = 0;
};

// Presses ALL and then a command under a task list.
inline std::string onAll(const std::string& side, const std::string& action) {
  return "click smtTaskActions(" + side + ") ALL\nclick smtTaskActions(" + side + ") " + action + "\n";
}
inline const std::string pickAll = "choose smtSkedPickTasks TASKPICK Tarnel\n";

// The wizard while it is open: one command after the other, with the world changing in between.
class OpenWizard {
 public:
  explicit OpenWizard(const std::string& shellCommand) : program_(shellCommand) {}

  // The facts up to the command's own reply, or to the end.
  std::vector<json> operator()(const std::string& command) {
    program_.write(command + "\n");
    std::vector<json> facts;
    while (const auto line = program_.readLine()) {
      facts.push_back(json::parse(*line));
      const json& fact = facts.back();
      if (fact.contains("reply") || fact.contains("error") || fact.contains("returned")) break;
    }
    return facts;
  }

 private:
  ChildProcess program_;
};

}  // namespace tarnel::test
