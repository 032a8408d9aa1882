#include "ItemColumns.h"

namespace tarnel::mailbox {
namespace {

using sqlite::Statement;

void read(const Statement& row, int column, std::int64_t& field) { field = row.number(column); }
void read(const Statement& row, int column, bool& field) { field = row.flag(column); }
void read(const Statement& row, int column, std::string& field) { field = row.text(column); }
void read(const Statement& row, int column, std::optional<std::int64_t>& field) {
  if (!row.isNull(column)) field = row.number(column);
}
template <class Enum>
requires std::is_enum_v<Enum>
void read(const Statement& row, int column, Enum& field) { field = static_cast<Enum>(row.number(column)); }

}  // namespace

std::string itemColumnDefinitions() {
  std::string definitions;
  forEachColumn([&](const auto& column) {
    definitions.append("  ").append(column.name).append(" ").append(column.declaration).append(",\n");
  });
  return definitions;
}

std::string itemSelection(const std::function<std::string(std::string_view column)>& expression) {
  std::string list = expression("id");
  forEachShortColumn([&](const auto& column) { list += ", " + expression(column.name); });
  return list;
}

const std::string& itemSelection() {
  static const std::string list = itemSelection([](std::string_view column) { return "i." + std::string(column); });
  return list;
}

ItemRecord readItem(const Statement& row) {
  ItemRecord item;
  item.id = row.number(0);
  int at = 0;
  forEachShortColumn([&](const auto& column) { read(row, ++at, item.*column.field); });
  return item;
}

}  // namespace tarnel::mailbox
