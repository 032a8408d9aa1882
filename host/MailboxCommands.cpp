#include "MailboxCommands.h"

#include <nlohmann/json.hpp>
#include <ostream>

#include "IcsReader.h"
#include "IcsWriter.h"
#include "MailboxFile.h"
#include "MailboxList.h"
#include "TerminalText.h"

namespace tarnel::host {
namespace {

using Json = nlohmann::ordered_json;
using mailbox::ListedItem;

template <class T>
Json jsonOf(const std::optional<T>& value) {
  return value ? Json(*value) : Json();
}
Json jsonOf(const std::optional<Date>& value) { return value ? Json(isoText(*value)) : Json(); }

const char* nameOf(outlook::TaskStatus status) {
  switch (status) {
    case outlook::TaskStatus::inProgress:
      return "in progress";
    case outlook::TaskStatus::complete:
      return "complete";
    case outlook::TaskStatus::waiting:
      return "waiting";
    case outlook::TaskStatus::notStarted:
      break;
  }
  return "not started";
}

const char* nameOf(outlook::ItemType kind) { return kind == outlook::ItemType::task ? "task" : "appointment"; }

Json jsonOf(const ListedItem& item) {
  Json properties = Json::object();
  for (const auto& [name, value] : item.userProperties) properties[name] = value;
  return {{"entryId", item.entryId},
          {"folder", item.folder},
          {"kind", nameOf(item.kind)},
          {"subject", item.subject},
          {"body", item.body},
          {"status", item.status ? Json(static_cast<int>(*item.status)) : Json()},
          {"importance", static_cast<int>(item.importance)},
          {"dueDate", jsonOf(item.dueDate)},
          {"totalWork", jsonOf(item.totalWork)},
          {"actualWork", jsonOf(item.actualWork)},
          {"start", jsonOf(item.start)},
          {"end", jsonOf(item.end)},
          {"location", jsonOf(item.location)},
          {"allDay", jsonOf(item.allDay)},
          {"recurring", jsonOf(item.recurring)},
          {"userProperties", properties}};
}

void writeLine(std::ostream& out, const ListedItem& item) {
  out << item.entryId << "  " << item.folder << "  ";
  if (item.start) out << isoText(*item.start) << "  ";
  if (item.dueDate) out << "due " << isoText(*item.dueDate).substr(0, 10) << "  ";
  out << onOneLine(item.subject);
  if (item.status) out << "  (" << nameOf(*item.status) << ")";
  if (item.recurring.value_or(false)) out << "  (recurring)";
  out << '\n';
}

}  // namespace

void MailboxCommands::list(bool json) const {
  mailbox::Mailbox open(file_, Locale(), clock_);
  const std::vector<ListedItem> items = mailbox::listItems(open);
  if (!json) {
    for (const ListedItem& item : items) writeLine(out_, item);
    return;
  }
  Json all = Json::array();
  for (const ListedItem& item : items) all.push_back(jsonOf(item));
  out_ << all.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

bool MailboxCommands::import(const std::filesystem::path& ics, std::ostream& errors) const {
  if (!std::filesystem::exists(file_)) mailbox::createMailbox(file_);
  mailbox::Mailbox open(file_, Locale(), clock_);
  const mailbox::ImportReport report = mailbox::importIcs(open, ics);
  for (const std::string& skipped : report.skipped) errors << onOneLine(skipped) << '\n';
  out_ << report.added << " added, " << report.updated << " updated, " << report.unchanged << " unchanged, "
       << report.skipped.size() << " skipped\n";
  return report.skipped.empty();
}

void MailboxCommands::exportTo(const std::filesystem::path& ics) const {
  mailbox::Mailbox open(file_, Locale(), clock_);
  out_ << mailbox::exportIcs(open, ics) << " written to " << ics.string() << '\n';
}

void MailboxCommands::remove(const std::string& entryId) const {
  mailbox::Mailbox open(file_, Locale(), clock_);
  mailbox::deleteItem(open, entryId);
}

void MailboxCommands::move(const std::string& entryId, const std::string& folder) const {
  mailbox::Mailbox open(file_, Locale(), clock_);
  mailbox::moveItem(open, entryId, folder);
}

}  // namespace tarnel::host
