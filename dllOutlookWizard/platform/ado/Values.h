#pragma once

#include <compare>
#include <cstddef>

#include "Provider.h"

namespace tarnel::ado {

// How the cursor engine orders and compares values, by the database's own rules: Null before numbers before texts
// before bytes; dates and truth values are numbers; letters A to Z without regard to case.
std::weak_ordering compareValues(const Variant& left, const Variant& right);

// The same for all values that compareValues calls equivalent.
std::size_t hashOf(const Variant& value);

// The value as its column holds it: texts become numbers in a number column and so on, by the rules of Conversions.h.
// Null stays Null. Failures as there, with the column's name.
Variant fitted(const Variant& value, const Column& column);

// The value to compare with those of a column: the same, but a number keeps the fraction that a column of whole numbers
// couldn't hold.
Variant comparable(const Variant& value, const Column& column);

}  // namespace tarnel::ado
