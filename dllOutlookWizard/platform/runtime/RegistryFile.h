#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "Variant.h"

namespace tarnel {

// The contents of a FileRegistry's file: keys with their whole paths, a key after the one that it lies in.
struct RegistryFile {
  struct Value {
    std::string name;
    Variant value;
  };
  struct Key {
    std::string path;
    std::vector<Value> values;
    Value* find(std::string_view name);
  };
  std::vector<Key> keys;

  // Failure 75 for a file that can't be read, or is none, naming it and the line.
  static RegistryFile read(const std::filesystem::path& file);
  // False when it can't be written; the old file is then as it was.
  bool write(const std::filesystem::path& file) const;

  Key* find(std::string_view path);
  // Adds what is missing of the path.
  Key& make(std::string_view path);
};

}  // namespace tarnel
