#pragma once

#include <memory>

#include "Registry.h"

namespace tarnel::test {

// A registry that lasts as long as it lives. `writable` false makes every write fail.
class MemoryRegistry : public Registry {
 public:
  MemoryRegistry();
  ~MemoryRegistry() override;

  bool writable = true;

  bool keyExists(std::string_view key) const override;
  std::vector<std::string> subKeys(std::string_view key) const override;
  std::vector<std::string> valueNames(std::string_view key) const override;
  Variant value(std::string_view key, std::string_view name) const override;
  bool createKey(std::string_view key) override;
  bool setValue(std::string_view key, std::string_view name, const Variant& value) override;
  bool deleteKey(std::string_view key) override;
  bool deleteValue(std::string_view key, std::string_view name) override;

 private:
  struct Key;
  Key* find(std::string_view path) const;

  std::unique_ptr<Key> root_;
};

}  // namespace tarnel::test
