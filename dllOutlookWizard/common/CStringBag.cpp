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

std::optional<Entry> findEntry(const std::string& contents, std::string_view name) {
  const std::string lead = toUpper(name) + "=";
  const std::size_t start = contents.find(lead);
  if (start == std::string::npos) return {};
  const std::size_t end = contents.find(entryEnd, start);
  if (end == std::string::npos)
    throw Failure(static_cast<std::int32_t>(0x80044719), "CStringBag component failure", "TarnelOutWizard.CStringBag");
  return Entry{start, start + lead.size(), end};
}

}  // namespace

std::string CStringBag::ReadItem(std::string_view name) const {
  const auto entry = findEntry(contents_, name);
  // A TAB inside the sought name would put the entry's end before its value.
  if (!entry || entry->value > entry->end) return {};
  return contents_.substr(entry->value, entry->end - entry->value);
}

void CStringBag::RemoveItem(std::string_view name) {
  const auto entry = findEntry(contents_, name);
  if (!entry) return;
  const std::string text = contents_.substr(entry->start, entry->end - entry->start + 1);
  std::string kept;
  std::size_t from = 0;
  for (std::size_t at = entry->start; at != std::string::npos; at = contents_.find(text, from)) {
    kept.append(contents_, from, at - from);
    from = at + text.size();
  }
  contents_ = kept.append(contents_, from);
}

void CStringBag::WriteItem(std::string_view name, std::string_view value) {
  // Removing one entry may join what lay around it to another NAME=, so ask again until none is left.
  while (findEntry(contents_, name)) RemoveItem(name);
  contents_.append(toUpper(name)).append("=").append(value).push_back(entryEnd);
}

}  // namespace tarnel
