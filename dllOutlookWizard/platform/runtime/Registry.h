#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Variant.h"

namespace tarnel {

// A tree of keys with named values below each, kept for the user between runs. Key paths are parts joined by "\",
// compared without regard to case. A number is kept as 32 bits, a text and bytes as they are.
class Registry {
 public:
  virtual ~Registry() = default;

  virtual bool keyExists(std::string_view key) const = 0;
  // Names of the keys directly below, in the order of their creation; none for a missing key.
  virtual std::vector<std::string> subKeys(std::string_view key) const = 0;
  virtual std::vector<std::string> valueNames(std::string_view key) const = 0;
  // Empty when the key or the value is missing.
  virtual Variant value(std::string_view key, std::string_view name) const = 0;

  // Each creates what is missing and is on disk when it returns. False when the store can't be written.
  virtual bool createKey(std::string_view key) = 0;
  virtual bool setValue(std::string_view key, std::string_view name, const Variant& value) = 0;
  // True also when there was nothing to delete. A key goes with all below it.
  virtual bool deleteKey(std::string_view key) = 0;
  virtual bool deleteValue(std::string_view key, std::string_view name) = 0;

  // For changes that belong together, or to what was read before: nobody else changes anything until the result is let
  // go of. Readers wait for nothing. May be called again by who holds it.
  virtual std::shared_ptr<void> hold() = 0;
};

}  // namespace tarnel
