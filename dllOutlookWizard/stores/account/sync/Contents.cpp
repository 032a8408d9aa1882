#include "Contents.h"

#include <algorithm>
#include <array>

#include "Conversions.h"
#include "IcsItem.h"

namespace tarnel::account {
namespace {

template <std::size_t Size>
bool isOneOf(const std::array<std::string_view, Size>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

// Those whose value is a list, which some servers cut into a line each.
bool isList(std::string_view property) {
  return isOneOf(std::array<std::string_view, 4>{"CATEGORIES", "RESOURCES", "EXDATE", "RDATE"}, property);
}

bool isWord(std::string_view property) {
  return isOneOf(std::array<std::string_view, 3>{"STATUS", "CLASS", "TRANSP"}, property);
}

// The parts of a value at a sign that no backslash escapes.
std::vector<std::string_view> split(std::string_view value, char sign) {
  std::vector<std::string_view> parts;
  std::size_t begin = 0;
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value[i] == '\\') {
      ++i;
    } else if (value[i] == sign) {
      parts.push_back(value.substr(begin, i - begin));
      begin = i + 1;
    }
  }
  parts.push_back(value.substr(begin));
  return parts;
}

// FREQ=DAILY;COUNT=2 and COUNT=2;FREQ=DAILY are one rule.
std::string ruleText(std::string_view value) {
  std::set<std::string> parts;
  for (const std::string_view part : split(value, ';')) parts.insert(toUpper(part));
  std::string text;
  for (const std::string& part : parts) text += part + ";";
  return text;
}

std::string plainValue(std::string_view property, std::string_view value) {
  if (property == "RRULE" || property == "EXRULE") return ruleText(value);
  return isWord(property) ? toUpper(value) : mailbox::unescaped(value);
}

// A value that says no more than its absence.
bool saysNothing(std::string_view property, std::string_view value) {
  return value.empty() || (value == "0" && (property == "PRIORITY" || property == "PERCENT-COMPLETE"));
}

std::string parametersText(const mailbox::IcsProperty& property) {
  std::string text;
  for (const auto& [name, value] : property.parameters)
    if (name != "VALUE" || (value != "DATE-TIME" && value != "TEXT"))
      text.append(";").append(name).append("=").append(value);
  return text;
}

// The components in these lines, one text each.
std::set<std::string> nestedTexts(const std::vector<mailbox::IcsLine>& lines) {
  std::set<std::string> texts;
  std::set<std::string> properties;
  int depth = 0;
  for (const mailbox::IcsLine& line : lines) {
    const std::string upper = toUpper(line.text.substr(0, 6));
    if (upper.starts_with("BEGIN:")) ++depth;
    if (upper.starts_with("END:")) --depth;
    properties.insert(std::to_string(depth) + mailbox::unescaped(line.text));
    if (depth > 0) continue;
    std::string text;
    for (const std::string& property : properties) text += property + "\n";
    texts.insert(std::move(text));
    properties.clear();
  }
  return texts;
}

bool isOneWholeCalendar(const std::vector<mailbox::IcsLine>& lines) {
  const auto ends = std::count_if(lines.begin(), lines.end(),
                                  [](const mailbox::IcsLine& line) { return toUpper(line.text) == "END:VCALENDAR"; });
  return ends == 1 && toUpper(lines.back().text) == "END:VCALENDAR";
}

}  // namespace

std::string fieldOf(const mailbox::IcsProperty& property) {
  constexpr std::array<std::string_view, 4> counting = {"DTSTAMP", "LAST-MODIFIED", "CREATED", "SEQUENCE"};
  constexpr std::array<std::string_view, 8> times = {"DTSTART", "DUE",    "DTEND", "DURATION",
                                                     "RRULE",   "EXDATE", "RDATE", "EXRULE"};
  constexpr std::array<std::string_view, 4> status = {"STATUS", "PERCENT-COMPLETE", "COMPLETED", mailbox::ics::status};
  if (isOneOf(counting, property.name)) return {};
  if (isOneOf(times, property.name)) return std::string(field::times);
  if (isOneOf(status, property.name)) return std::string(field::status);
  if (property.name != mailbox::ics::userProperty) return property.name;
  return property.name + ";" + property.parameter(mailbox::ics::userPropertyName);
}

ContentsPart::ContentsPart(mailbox::IcsComponent component) : component_(std::move(component)) {
  for (const mailbox::IcsProperty& property : component_.properties) {
    const std::string name = fieldOf(property);
    if (name.empty()) continue;
    const auto parts =
        isList(property.name) ? split(property.value, ',') : std::vector<std::string_view>{property.value};
    for (const std::string_view part : parts) {
      const std::string value = plainValue(property.name, part);
      if (!saysNothing(property.name, value))
        values_[name].insert(property.name + parametersText(property) + ":" + value);
    }
  }
  if (!component_.nested.empty()) values_[std::string(field::nested)] = nestedTexts(component_.nested);
}

std::string ContentsPart::key() const {
  const mailbox::IcsProperty* occurrence = component_.find("RECURRENCE-ID");
  return occurrence ? component_.kind + " " + occurrence->value : component_.kind;
}

const std::set<std::string>& ContentsPart::values(std::string_view name) const {
  static const std::set<std::string> none;
  const auto found = values_.find(name);
  return found == values_.end() ? none : found->second;
}

std::set<std::string> ContentsPart::fields() const {
  std::set<std::string> names;
  for (const auto& [name, values] : values_) names.insert(name);
  return names;
}

std::vector<std::string> ContentsPart::lines(std::string_view name) const {
  std::vector<std::string> lines;
  if (name == field::nested)
    for (const mailbox::IcsLine& line : component_.nested) lines.push_back(line.text);
  for (const mailbox::IcsProperty& property : component_.properties)
    if (fieldOf(property) == name) lines.push_back(property.line.text);
  return lines;
}

std::optional<Contents> Contents::read(std::string_view text) {
  mailbox::IcsCalendar calendar = mailbox::readIcsLines(text);
  if (!calendar.found || !calendar.problems.empty() || !mailbox::isUtf8(text)) return {};
  Contents contents;
  contents.lines_ = mailbox::unfolded(text);
  if (!isOneWholeCalendar(contents.lines_)) return {};
  for (mailbox::IcsComponent& component : calendar.components) {
    if (component.kind == "VTIMEZONE") {
      const mailbox::IcsProperty* id = component.find("TZID");
      contents.zones_.emplace(id ? id->value : "", std::move(component));
      continue;
    }
    // Two parts for one occurrence would be one too many to merge.
    ContentsPart part(std::move(component));
    if (!contents.parts_.emplace(part.key(), part).second) return {};
  }
  return contents.parts_.empty() ? std::nullopt : std::optional(std::move(contents));
}

const ContentsPart* Contents::part(const std::string& key) const {
  const auto found = parts_.find(key);
  return found == parts_.end() ? nullptr : &found->second;
}

std::string Contents::uid() const {
  if (parts_.empty()) return {};
  const mailbox::IcsProperty* uid = parts_.begin()->second.component().find("UID");
  return uid ? mailbox::unescaped(uid->value) : "";
}

std::string Contents::modified() const {
  std::string latest;
  for (const auto& [key, part] : parts_)
    for (const char* name : {"LAST-MODIFIED", "DTSTAMP"})
      if (const mailbox::IcsProperty* stamp = part.component().find(name)) {
        latest = std::max(latest, stamp->value);
        break;  // DTSTAMP only where nothing better is
      }
  return latest;
}

}  // namespace tarnel::account
