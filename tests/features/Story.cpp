#include "Story.h"

#include "Conversions.h"

namespace tarnel::test {
namespace {

using nlohmann::json;

std::string onOneLine(std::string text) {
  for (std::size_t at = 0; (at = text.find("\r\n", at)) != std::string::npos;) text.replace(at, 2, "/");
  return text;
}

std::string toldOf(const json& fact) {
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

}  // namespace

Story::Story() {
  EXPECT_EQ(run("new tasks.db").exitCode, 0);
  import("");
}

std::string Story::told(const std::vector<json>& facts) {
  std::string text;
  for (const json& fact : facts)
    if (!fact.contains("reply")) text += toldOf(fact) + "\n";
  return text;
}

std::string Story::listed(const std::string& side, const std::string& commands) const {
  std::string text;
  const json list = drive(commands + "list smtTaskList(" + side + ")\n").reply("list");
  for (const json& row : list["items"]) text += std::string(row["caption"]) + "|" + std::string(row["picture"]) + "\n";
  return text;
}

std::shared_ptr<ado::Session> Story::open() {
  return provider_.open("Data Source=\"" + (run.home / "tasks.db").string() + "\";");
}

void Story::change(const std::string& statement) { open()->execute(statement); }

std::string Story::rows(const std::string& select) {
  std::string text;
  for (const ado::Row& row : open()->query(select).rows) {
    const char* separator = "";
    for (const Variant& value : row) {
      text += separator + (value.isNull() ? "-" : toText(value));
      separator = "|";
    }
    text += "\n";
  }
  return text;
}

std::string Story::wholeDatabase() {
  std::string text;
  for (const char* table : {"TASKS", "TASKAPPTS", "TASKKEYWORDS", "PROJECTS", "Settings"})
    if (rows("SELECT name FROM sqlite_master WHERE name='" + std::string(table) + "'") != "")
      text += rows("SELECT * FROM " + std::string(table));
  return text;
}

void Story::addTask(const std::string& key, const std::string& description, const Columns& columns) {
  Columns all = columns;
  all.insert({{"tskGUIDID", "'" + key + "'"}, {"tskDesc", "'" + description + "'"}, {"tskCurrent", "1"}});
  std::string names, values;
  for (const auto& [name, value] : all) {
    names += (names.empty() ? "" : ", ") + name;
    values += (values.empty() ? "" : ", ") + value;
  }
  change("INSERT INTO TASKS (" + names + ") VALUES (" + values + ")");
}

void Story::import(const std::string& components) {
  run.home.write("in.ics", "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:x\r\n" + components + "END:VCALENDAR\r\n");
  const ProgramResult result = run("mailbox import in.ics");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
}

void Story::addItem(const std::string& subject, const std::optional<std::string>& guid, const std::string& lines) {
  const std::string property =
      guid ? "X-TARNEL-USER-PROPERTY;X-NAME=\"BrackwellTarnelGUID\":" + *guid + "\r\n" : std::string();
  import("BEGIN:VTODO\r\nUID:item" + std::to_string(++imported_) +
         "\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:" + subject + "\r\n" + property + lines + "END:VTODO\r\n");
}

std::vector<json> Story::items() const { return json::parse(run("mailbox list --json").output); }

std::string Story::mailbox() const {
  std::string text;
  for (const json& item : items())
    text += std::string(item["folder"]) + "|" + std::string(item["subject"]) + "|" + item["status"].dump() + "|" +
            item["userProperties"].value("BrackwellTarnelGUID", "-") + "\n";
  return text;
}

std::string Story::entryOf(const std::string& subject) const {
  for (const json& item : items())
    if (item["subject"] == subject) return item["entryId"];
  ADD_FAILURE() << "No item " << subject << " in " << mailbox();
  return {};
}

std::string onAll(const std::string& side, const std::string& action) {
  return "click smtTaskActions(" + side + ") ALL\nclick smtTaskActions(" + side + ") " + action + "\n";
}

std::vector<json> OpenWizard::operator()(const std::string& command) {
  program_.write(command + "\n");
  std::vector<json> facts;
  while (const auto line = program_.readLine()) {
    facts.push_back(json::parse(*line));
    const json& fact = facts.back();
    if (fact.contains("reply") || fact.contains("error") || fact.contains("returned")) break;
  }
  return facts;
}

}  // namespace tarnel::test
