#include "Conversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "Failure.h"

namespace tarnel {
namespace {

constexpr std::string_view hexDigits = "0123456789ABCDEF";

[[noreturn]] void failNull() { throw Failure(failure::invalidNull, "Invalid use of Null"); }
[[noreturn]] void failOverflow() { throw Failure(failure::overflow, "Overflow"); }

char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

double numberFromText(std::string_view text) {
  std::string_view digits = trimmed(text);
  std::string_view unsignedDigits = digits;
  if (digits.starts_with('+') || digits.starts_with('-')) unsignedDigits.remove_prefix(1);
  if (digits.starts_with('+')) digits = unsignedDigits;  // from_chars takes no plus
  // Only digits and a point may lead: from_chars would also take "inf" and "nan".
  if (unsignedDigits.empty() || std::string_view("0123456789.").find(unsignedDigits.front()) == std::string_view::npos)
    failTypeMismatch();
  double number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error == std::errc::result_out_of_range) failOverflow();
  if (error != std::errc{} || end != digits.data() + digits.size()) failTypeMismatch();
  return number;
}

template <class Number>
std::string numberText(Number number, int significantDigits) {
  std::array<char, 64> text{};
  const auto [end, error] =
      std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::general, significantDigits);
  std::string result(text.data(), end);
  std::replace(result.begin(), result.end(), 'e', 'E');
  return result;
}

struct ToDouble {
  double operator()(std::monostate) const { return 0; }
  double operator()(Null) const { failNull(); }
  double operator()(bool value) const { return value ? -1 : 0; }
  double operator()(std::int32_t value) const { return value; }
  double operator()(float value) const { return value; }
  double operator()(double value) const { return value; }
  double operator()(Date value) const { return value.days; }
  double operator()(const std::string& value) const { return numberFromText(value); }
  double operator()(const Bytes&) const { failTypeMismatch(); }
};

struct ToText {
  std::string operator()(std::monostate) const { return {}; }
  std::string operator()(Null) const { failNull(); }
  std::string operator()(bool value) const { return value ? "True" : "False"; }
  std::string operator()(std::int32_t value) const { return std::to_string(value); }
  std::string operator()(float value) const { return numberText(value, 7); }
  std::string operator()(double value) const { return numberText(value, 15); }
  std::string operator()(Date value) const { return isoText(value); }
  std::string operator()(const std::string& value) const { return value; }
  std::string operator()(const Bytes&) const { failTypeMismatch(); }
};

}  // namespace

std::int32_t roundToLong(double number) {
  const double rounded = std::nearbyint(number);
  if (!(rounded >= std::numeric_limits<std::int32_t>::min() && rounded <= std::numeric_limits<std::int32_t>::max()))
    failOverflow();
  return static_cast<std::int32_t>(rounded);
}

std::int32_t toLong(const Variant& value) {
  if (const auto* number = value.get<std::int32_t>()) return *number;
  return roundToLong(toDouble(value));
}

float toSingle(const Variant& value) {
  const double number = toDouble(value);
  if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max())) failOverflow();
  return static_cast<float>(number);
}

double toDouble(const Variant& value) { return std::visit(ToDouble{}, value.value()); }

bool toBoolean(const Variant& value) {
  if (const auto* text = value.get<std::string>()) {
    if (equalsIgnoringCase(*text, "True")) return true;
    if (equalsIgnoringCase(*text, "False")) return false;
  }
  return toDouble(value) != 0;
}

Date toDate(const Variant& value) {
  if (const auto* text = value.get<std::string>()) {
    if (const auto date = parseIsoDate(*text)) return *date;
    failTypeMismatch();
  }
  const double days = toDouble(value);
  if (!Date::canBe(days)) failOverflow();
  return {days};
}

std::string toText(const Variant& value) { return std::visit(ToText{}, value.value()); }

std::string textOrEmpty(const Variant& value) { return value.isNull() ? std::string() : toText(value); }

bool isDate(const Variant& value) {
  const auto* text = value.get<std::string>();
  return value.is<Date>() || (text && parseIsoDate(*text));
}

std::string hexText(const Bytes& bytes) {
  std::string text;
  text.reserve(bytes.size() * 2);
  for (const std::uint8_t byte : bytes) {
    text += hexDigits[byte >> 4];
    text += hexDigits[byte & 0xF];
  }
  return text;
}

std::optional<Bytes> bytesOfHex(std::string_view text) {
  if (text.size() % 2 != 0) return {};
  Bytes bytes;
  bytes.reserve(text.size() / 2);
  for (std::size_t i = 0; i < text.size(); i += 2) {
    const std::size_t high = hexDigits.find(upper(text[i]));
    const std::size_t low = hexDigits.find(upper(text[i + 1]));
    if (high == std::string_view::npos || low == std::string_view::npos) return {};
    bytes.push_back(static_cast<std::uint8_t>(high << 4 | low));
  }
  return bytes;
}

bool equalsIgnoringCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return upper(a) == upper(b); });
}

std::string toUpper(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), upper);
  return result;
}

}  // namespace tarnel
