#include "ColumnTypes.h"

#include <sqlite3.h>

#include <array>
#include <limits>
#include <utility>

#include "Conversions.h"

namespace tarnel::sqlite {
namespace {

using Type = ado::Column::Type;

// A number that can be no date's stays a number.
Variant readDate(double number) { return Date::canBe(number) ? Variant(Date{number}) : Variant(number); }

Variant readInteger(std::int64_t value, Type type) {
  if (type == Type::boolean) return value != 0;
  const auto number = static_cast<double>(value);
  if (type == Type::dateTime) return readDate(number);
  if (type == Type::real || value < std::numeric_limits<std::int32_t>::min() ||
      value > std::numeric_limits<std::int32_t>::max())
    return number;
  return static_cast<std::int32_t>(value);
}

std::string_view textAt(sqlite3_stmt* row, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
  return {text, static_cast<std::size_t>(sqlite3_column_bytes(row, column))};
}

Variant readText(std::string_view text, Type type) {
  if (type == Type::dateTime)
    if (const auto date = parseIsoDate(text)) return *date;
  return text;
}

}  // namespace

Type typeDeclaredAs(std::string_view declaration) {
  // The first of these that stands in the declaration counts.
  static constexpr std::array<std::pair<std::string_view, Type>, 18> kinds{{{"DATE", Type::dateTime},
                                                                            {"TIME", Type::dateTime},
                                                                            {"BOOL", Type::boolean},
                                                                            {"BIT", Type::boolean},
                                                                            {"YESNO", Type::boolean},
                                                                            {"CHAR", Type::text},
                                                                            {"TEXT", Type::text},
                                                                            {"CLOB", Type::text},
                                                                            {"MEMO", Type::text},
                                                                            {"INT", Type::integer},
                                                                            {"LONG", Type::integer},
                                                                            {"REAL", Type::real},
                                                                            {"FLOA", Type::real},
                                                                            {"DOUB", Type::real},
                                                                            {"SINGLE", Type::real},
                                                                            {"NUM", Type::real},
                                                                            {"DEC", Type::real},
                                                                            {"BLOB", Type::bytes}}};
  const std::string upper = toUpper(declaration);
  for (const auto& [part, type] : kinds)
    if (upper.find(part) != std::string::npos) return type;
  return Type::any;
}

Variant readValue(sqlite3_stmt* row, int column, Type type) {
  switch (sqlite3_column_type(row, column)) {
    case SQLITE_INTEGER:
      return readInteger(sqlite3_column_int64(row, column), type);
    case SQLITE_FLOAT: {
      const double number = sqlite3_column_double(row, column);
      return type == Type::dateTime ? readDate(number) : Variant(number);
    }
    case SQLITE_TEXT:
      return readText(textAt(row, column), type);
    case SQLITE_BLOB: {
      const auto* bytes = static_cast<const std::uint8_t*>(sqlite3_column_blob(row, column));
      return Bytes(bytes, bytes + sqlite3_column_bytes(row, column));
    }
    default:
      return Null{};
  }
}

void appendValue(ado::PackedRows& rows, sqlite3_stmt* row, int column, Type type) {
  // Most values are texts, and these need no Variant on their way.
  if (type != Type::dateTime && sqlite3_column_type(row, column) == SQLITE_TEXT)
    rows.addText(textAt(row, column));
  else
    rows.add(readValue(row, column, type));
}

}  // namespace tarnel::sqlite
