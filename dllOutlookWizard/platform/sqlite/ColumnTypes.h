#pragma once

#include <string_view>

#include "Provider.h"

struct sqlite3_stmt;

namespace tarnel::sqlite {

// What a column's declared type stands for, case ignored; `any` for none and for an unknown one.
ado::Column::Type typeDeclaredAs(std::string_view declaration);

// The value of a result column in the row that the statement stands on. A value that isn't of its column's type comes
// as it is: a text that is no date in a DATETIME column as text.
Variant readValue(sqlite3_stmt* row, int column, ado::Column::Type type);
// The same, added to `rows`.
void appendValue(ado::PackedRows& rows, sqlite3_stmt* row, int column, ado::Column::Type type);

}  // namespace tarnel::sqlite
