#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "Date.h"

namespace tarnel {

// The value that says that there is none.
struct Null {
  friend bool operator==(Null, Null) { return true; }
};

using Bytes = std::vector<std::uint8_t>;

// A value that carries its type along, as database columns, properties and control values do. A fresh one is empty,
// which is neither Null nor an empty text. Equality is by type and value; how one type turns into another is in
// Conversions.h.
class Variant {
 public:
  using Value = std::variant<std::monostate, Null, bool, std::int32_t, float, double, Date, std::string, Bytes>;

  Variant() = default;
  Variant(Null value) : value_(value) {}
  Variant(bool value) : value_(value) {}
  Variant(std::int32_t value) : value_(value) {}
  Variant(float value) : value_(value) {}
  Variant(double value) : value_(value) {}
  Variant(Date value) : value_(value) {}
  Variant(std::string value) : value_(std::move(value)) {}
  Variant(std::string_view value) : value_(std::string(value)) {}
  Variant(const char* value) : value_(std::string(value)) {}
  Variant(Bytes value) : value_(std::move(value)) {}

  bool isEmpty() const { return std::holds_alternative<std::monostate>(value_); }
  bool isNull() const { return std::holds_alternative<Null>(value_); }
  template <class T>
  bool is() const {
    return std::holds_alternative<T>(value_);
  }
  // The value when it is of just this type, else none.
  template <class T>
  const T* get() const {
    return std::get_if<T>(&value_);
  }
  const Value& value() const { return value_; }

  friend bool operator==(const Variant&, const Variant&) = default;

 private:
  Value value_;
};

}  // namespace tarnel
