#include "CStringBag.h"

#include <optional>

#include "Conversions.h"
#include "Failure.h"

namespace tarnel {
namespace {

constexpr char entryEnd = '\t';

struct Entry {
  std::size_t start;
  std::size_t value;
  std::size_t end;  // of its TAB
};

std::string leadOf(std::string_view name) { return toUpper(name) + "="; }

std::optional<Entry> findEntry(const std::string& contents, const std::string& lead) {
  const std::size_t start = contents.find(lead);
  if (start == std::string::npos) return {};
  const std::size_t end = contents.find(entryEnd, start);
  if (end == std::string::npos)
    throw Failure(static_cast<std::int32_t>(0x80044719), "CStringBag component failure", "TarnelOutWizard.CStringBag");
  return Entry{start, start + lead.size(), end};
}

void remove(std::string& contents, const Entry& entry) {
  const std::string text = contents.substr(entry.start, entry.end - entry.start + 1);
  std::string kept;
  std::size_t from = 0;
  for (std::size_t at = entry.start; at != std::string::npos; at = contents.find(text, from)) {
    kept.append(contents, from, at - from);
    from = at + text.size();
  }
  contents = kept.append(contents, from);
}

}  // namespace

std::string CStringBag::ReadItem(std::string_view name) const {
  const auto entry = findEntry(contents_, leadOf(name));
  // A TAB inside the sought name would put the entry's end before its value.
  if (!entry || entry->value > entry->end) return {};
  return contents_.substr(entry->value, entry->end - entry->value);
}

void CStringBag::RemoveItem(std::string_view name) {
  if (const auto entry = findEntry(contents_, leadOf(name))) remove(contents_, *entry);
}

void CStringBag::WriteItem(std::string_view name, std::string_view value) {
  const std::string lead = leadOf(name);
  // Removing one entry may join what lay around it to another NAME=, so ask again until none is left.
  while (const auto entry = findEntry(contents_, lead)) remove(contents_, *entry);
  contents_.append(lead).append(value).push_back(entryEnd);
}

}  // namespace tarnel
