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

std::string_view textOf(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

Variant readText(std::string_view text, Type type) {
  if (type == Type::dateTime)
    if (const auto date = parseIsoDate(text)) return *date;
  return text;
}

Variant read(sqlite3_value* value, Type type) {
  switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
      return readInteger(sqlite3_value_int64(value), type);
    case SQLITE_FLOAT: {
      const double number = sqlite3_value_double(value);
      return type == Type::dateTime ? readDate(number) : Variant(number);
    }
    case SQLITE_TEXT:
      return readText(textOf(value), type);
    case SQLITE_BLOB: {
      const auto* bytes = static_cast<const std::uint8_t*>(sqlite3_value_blob(value));
      return Bytes(bytes, bytes + sqlite3_value_bytes(value));
    }
    default:
      return Null{};
  }
}

// A column is taken out of its row once: each question to a row costs as much as the answer. That is for connections of
// one thread only, which all of ours are.
sqlite3_value* valueAt(const Statement& row, std::size_t column) {
  return sqlite3_column_value(row.handle(), static_cast<int>(column));
}

struct Binder {
  Statement& statement;

  void operator()(std::monostate) const { statement.bindNull(); }
  void operator()(Null) const { statement.bindNull(); }
  void operator()(bool value) const { statement.bind(std::int64_t{value}); }
  void operator()(std::int32_t value) const { statement.bind(value); }
  void operator()(float value) const { statement.bindReal(static_cast<double>(value)); }
  void operator()(double value) const { statement.bindReal(value); }
  void operator()(Date value) const { statement.bind(isoText(value)); }
  void operator()(const std::string& value) const { statement.bind(value); }
  void operator()(const Bytes& value) const { statement.bindBytes(value); }
};

}  // namespace

Type typeDeclaredAs(std::string_view declaration) {
  // The first of these that the declaration has counts.
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

Variant readValue(const Statement& row, std::size_t column, Type type) { return read(valueAt(row, column), type); }

void appendValue(ado::PackedRows& rows, const Statement& row, std::size_t column, Type type) {
  sqlite3_value* value = valueAt(row, column);
  // Most values are texts or nothing, and these need no Variant on their way.
  const int storage = sqlite3_value_type(value);
  if (storage == SQLITE_NULL)
    rows.addNull();
  else if (storage == SQLITE_TEXT && type != Type::dateTime)
    rows.addText(textOf(value));
  else
    rows.add(read(value, type));
}

void bindValue(Statement& statement, const Variant& value) { std::visit(Binder{statement}, value.value()); }

}  // namespace tarnel::sqlite
