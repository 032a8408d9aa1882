#pragma once

#include <string_view>

#include "Provider.h"
#include "Statement.h"

namespace tarnel::sqlite {

// The kind of values that a column's declared type means, case ignored; `any` for none and for an unknown one.
ado::Column::Type typeDeclaredAs(std::string_view declaration);

// A result column of the statement's row. A value that isn't of its column's type comes as it is: a text that is no
// date in a DATETIME column as text.
Variant readValue(const Statement& row, std::size_t column, ado::Column::Type type);
// The same, added to `rows`.
void appendValue(ado::PackedRows& rows, const Statement& row, std::size_t column, ado::Column::Type type);

// Binds the next parameter. Null and empty values become NULL, truth values 0 and 1, dates ISO text.
void bindValue(Statement& statement, const Variant& value);

}  // namespace tarnel::sqlite
