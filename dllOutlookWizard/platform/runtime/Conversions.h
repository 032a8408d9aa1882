#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "Variant.h"

namespace tarnel {

// How values turn into one another. An empty value counts as 0, "" and false. Null fails with 94, a text that is no
// number with 13, a number out of range with 6. Numbers round to the nearest whole one, halves to the even one.

std::int32_t toLong(const Variant& value);
float toSingle(const Variant& value);
double toDouble(const Variant& value);
// A text is "True", "False" (case ignored) or a number; any number but 0 is true.
bool toBoolean(const Variant& value);
// A number is a day number, within the range of Date; a text is read as parseIsoDate reads it.
Date toDate(const Variant& value);
// "True" and "False"; numbers with at most 15 significant digits (single precision: 7) and a point; dates as
// isoText writes them.
std::string toText(const Variant& value);
// The value joined to an empty text: Null gives "".
std::string textOrEmpty(const Variant& value);

// Whether toDate of a date or of a text succeeds; a bare number is no date.
bool isDate(const Variant& value);

// The nearest whole number, halves to the even one. Failure 6 beyond 32 bits.
std::int32_t roundToLong(double number);

// Bytes as upper-case hexadecimal digits, and back: case is ignored, none for any other text.
std::string hexText(const Bytes& bytes);
std::optional<Bytes> bytesOfHex(std::string_view text);

// Case is ignored for the letters A to Z alone, as the database's own names and text comparisons do.
bool equalsIgnoringCase(std::string_view left, std::string_view right);
std::string toUpper(std::string_view text);

}  // namespace tarnel
