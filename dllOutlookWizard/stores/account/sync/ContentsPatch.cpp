#include "ContentsPatch.h"

#include <algorithm>
#include <charconv>

#include "Conversions.h"
#include "IcsOutput.h"

namespace tarnel::account {
namespace {

std::string nextNumber(const std::string& text) {
  int number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return std::to_string(number + 1);
}

void write(mailbox::IcsOutput& output, const std::vector<mailbox::IcsLine>& lines) {
  for (const mailbox::IcsLine& line : lines) output.line(line.text);
}

}  // namespace

void ContentsPatch::replace(const std::string& part, const std::string& field, std::vector<std::string> lines) {
  fields_[part][field] = std::move(lines);
}

ContentsPatch::Lines ContentsPatch::patched(const ContentsPart& part, const std::map<std::string, Lines>& fields,
                                            const std::string& stamp) const {
  const mailbox::IcsComponent& component = part.component();
  const auto isReplaced = [&](std::string_view name) { return fields.count(std::string(name)) > 0; };
  Lines lines = {component.lines.front().text, "DTSTAMP:" + stamp, "LAST-MODIFIED:" + stamp};
  for (const mailbox::IcsProperty& property : component.properties) {
    if (property.name == "DTSTAMP" || property.name == "LAST-MODIFIED") continue;
    if (property.name == "SEQUENCE")
      lines.push_back("SEQUENCE:" + nextNumber(property.value));
    else if (!isReplaced(fieldOf(property)))
      lines.push_back(property.line.text);
  }
  for (const auto& [name, replacement] : fields)
    if (name != field::nested) lines.insert(lines.end(), replacement.begin(), replacement.end());
  const Lines nested = isReplaced(field::nested) ? fields.at(std::string(field::nested)) : part.lines(field::nested);
  lines.insert(lines.end(), nested.begin(), nested.end());
  lines.push_back(component.lines.back().text);
  return lines;
}

std::string ContentsPatch::apply(const std::string& stamp) const {
  std::map<int, const ContentsPart*> partAt;  // by the number of its first line
  for (const auto& [key, part] : text_.parts()) partAt[part.component().line] = &part;
  mailbox::IcsOutput output;
  for (std::size_t i = 0; i < text_.lines().size(); ++i) {
    const mailbox::IcsLine& line = text_.lines()[i];
    if (toUpper(line.text) == "END:VCALENDAR")
      for (const mailbox::IcsComponent* component : added_) write(output, component->lines);
    const auto at = partAt.find(line.number);
    if (at == partAt.end()) {
      output.line(line.text);
      continue;
    }
    const ContentsPart& part = *at->second;
    i += part.component().lines.size() - 1;
    if (removed_.count(part.key()) > 0) continue;
    const auto fields = fields_.find(part.key());
    if (fields == fields_.end())
      write(output, part.component().lines);
    else
      for (const std::string& changed : patched(part, fields->second, stamp)) output.line(changed);
  }
  return output.result();
}

}  // namespace tarnel::account
