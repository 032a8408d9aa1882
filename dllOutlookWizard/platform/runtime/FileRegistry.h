#pragma once

#include <filesystem>
#include <functional>

#include "Registry.h"

namespace tarnel {

struct RegistryFile;

// A registry in one text file. Each operation reads the file again, so that programs side by side see one another's
// keys; a write replaces the whole file, so that there is never half a one, and waits for the writes of others, by a
// lock file beside it. A missing file is an empty registry. Value names are compared without regard to case, as keys
// are.
//
// The file: a first line that names its kind, then one line an entry, its fields parted by tabs: "key PATH", and after
// the key its values, "text NAME VALUE", "number NAME VALUE" and "bytes NAME HEX". In a field "\\" is a
// backslash, "\t", "\n" and "\r" for the tab and the line ends.
//
// A file that can't be read so is failure 75 in every operation, naming the file and, where one is wrong, the line; it
// is left alone.
class FileRegistry : public Registry {
 public:
  explicit FileRegistry(std::filesystem::path file) : file_(std::move(file)) {}

  bool keyExists(std::string_view key) const override;
  std::vector<std::string> subKeys(std::string_view key) const override;
  std::vector<std::string> valueNames(std::string_view key) const override;
  Variant value(std::string_view key, std::string_view name) const override;
  bool createKey(std::string_view key) override;
  // Texts, 32-bit numbers and bytes can be kept; false for any other kind.
  bool setValue(std::string_view key, std::string_view name, const Variant& value) override;
  bool deleteKey(std::string_view key) override;
  bool deleteValue(std::string_view key, std::string_view name) override;
  std::shared_ptr<void> hold() override;

 private:
  // `work` says whether the contents have to be written; false when they can't be.
  bool change(const std::function<bool(RegistryFile&)>& work);

  std::filesystem::path file_;
  std::weak_ptr<void> held_;
};

}  // namespace tarnel
