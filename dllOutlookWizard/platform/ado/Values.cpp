#include "Values.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "Conversions.h"
#include "Failure.h"

namespace tarnel::ado {
namespace {

enum class Rank { none, number, text, bytes };

Rank rankOf(const Variant& value) {
  if (value.isNull() || value.isEmpty()) return Rank::none;
  if (value.is<std::string>()) return Rank::text;
  return value.is<Bytes>() ? Rank::bytes : Rank::number;
}

// Both cases compare as small letters, so that signs between "Z" and "a" sort as the engine sorts them.
unsigned char folded(char c) { return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c); }

std::weak_ordering compareTexts(const std::string& left, const std::string& right) {
  const std::size_t common = std::min(left.size(), right.size());
  for (std::size_t i = 0; i < common; ++i)
    if (const auto order = folded(left[i]) <=> folded(right[i]); order != 0) return order;
  return left.size() <=> right.size();
}

std::weak_ordering compareNumbers(double left, double right) {
  return left < right    ? std::weak_ordering::less
         : left == right ? std::weak_ordering::equivalent
                         : std::weak_ordering::greater;
}

// A whole number is kept as one as far as 32 bits reach.
Variant fittedNumber(const Variant& value) {
  if (value.is<std::int32_t>()) return value;
  const double number = std::nearbyint(toDouble(value));
  if (std::abs(number) > std::numeric_limits<std::int32_t>::max()) return number;
  return static_cast<std::int32_t>(number);
}

Variant converted(const Variant& value, Column::Type type) {
  switch (type) {
    case Column::Type::text:
      return value.is<std::string>() ? value : Variant(toText(value));
    case Column::Type::integer:
      return fittedNumber(value);
    case Column::Type::real:
      return toDouble(value);
    case Column::Type::boolean:
      return toBoolean(value);
    case Column::Type::dateTime:
      return toDate(value);
    case Column::Type::bytes:
      if (!value.is<Bytes>()) failTypeMismatch();
      return value;
    case Column::Type::any:
      break;
  }
  return value;
}

Variant fittedTo(Column::Type type, const Variant& value, const Column& column) {
  if (value.isNull()) return value;
  try {
    return converted(value, type);
  } catch (const Failure& failure) {
    throw Failure(failure.number(), failure.description() + " (column " + column.name + ")");
  }
}

}  // namespace

std::weak_ordering compareValues(const Variant& left, const Variant& right) {
  const Rank rank = rankOf(left);
  if (const auto order = rank <=> rankOf(right); order != 0) return order;
  switch (rank) {
    case Rank::number:
      return compareNumbers(toDouble(left), toDouble(right));
    case Rank::text:
      return compareTexts(*left.get<std::string>(), *right.get<std::string>());
    case Rank::bytes:
      return *left.get<Bytes>() <=> *right.get<Bytes>();
    case Rank::none:
      break;
  }
  return std::weak_ordering::equivalent;
}

std::size_t hashOf(const Variant& value) {
  switch (rankOf(value)) {
    case Rank::number:
      return std::hash<double>{}(toDouble(value));
    case Rank::text: {
      std::uint64_t hash = 14695981039346656037U;  // FNV-1a
      for (const char c : *value.get<std::string>()) hash = (hash ^ folded(c)) * 1099511628211U;
      return static_cast<std::size_t>(hash);
    }
    default:
      return 0;
  }
}

Variant fitted(const Variant& value, const Column& column) { return fittedTo(column.type, value, column); }

Variant comparable(const Variant& value, const Column& column) {
  return fittedTo(column.type == Column::Type::integer ? Column::Type::real : column.type, value, column);
}

}  // namespace tarnel::ado
