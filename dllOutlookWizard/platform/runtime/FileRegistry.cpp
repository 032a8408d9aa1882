#include "FileRegistry.h"

#include <algorithm>

#include "Conversions.h"
#include "RegistryFile.h"

namespace tarnel {
namespace {

// Whether `path` lies below `key`, at any depth.
bool isBelow(std::string_view path, std::string_view key) {
  return path.size() > key.size() && path[key.size()] == '\\' && equalsIgnoringCase(path.substr(0, key.size()), key);
}

}  // namespace

bool FileRegistry::keyExists(std::string_view key) const { return RegistryFile::read(file_).find(key) != nullptr; }

std::vector<std::string> FileRegistry::subKeys(std::string_view key) const {
  std::vector<std::string> names;
  for (const RegistryFile::Key& each : RegistryFile::read(file_).keys) {
    if (!isBelow(each.path, key)) continue;
    std::string name = each.path.substr(key.size() + 1);
    if (name.find('\\') == std::string::npos) names.push_back(std::move(name));
  }
  return names;
}

std::vector<std::string> FileRegistry::valueNames(std::string_view key) const {
  std::vector<std::string> names;
  RegistryFile contents = RegistryFile::read(file_);
  if (const RegistryFile::Key* found = contents.find(key))
    for (const RegistryFile::Value& each : found->values) names.push_back(each.name);
  return names;
}

Variant FileRegistry::value(std::string_view key, std::string_view name) const {
  RegistryFile contents = RegistryFile::read(file_);
  RegistryFile::Key* found = contents.find(key);
  const RegistryFile::Value* value = found ? found->find(name) : nullptr;
  return value ? value->value : Variant();
}

bool FileRegistry::createKey(std::string_view key) {
  RegistryFile contents = RegistryFile::read(file_);
  if (contents.find(key)) return true;
  contents.make(key);
  return contents.write(file_);
}

bool FileRegistry::setValue(std::string_view key, std::string_view name, const Variant& value) {
  if (!value.is<std::string>() && !value.is<std::int32_t>() && !value.is<Bytes>()) return false;
  RegistryFile contents = RegistryFile::read(file_);
  RegistryFile::Key& into = contents.make(key);
  if (RegistryFile::Value* there = into.find(name))
    there->value = value;
  else
    into.values.push_back({std::string(name), value});
  return contents.write(file_);
}

bool FileRegistry::deleteKey(std::string_view key) {
  RegistryFile contents = RegistryFile::read(file_);
  const auto gone = std::erase_if(contents.keys, [key](const RegistryFile::Key& each) {
    return equalsIgnoringCase(each.path, key) || isBelow(each.path, key);
  });
  return gone == 0 || contents.write(file_);
}

bool FileRegistry::deleteValue(std::string_view key, std::string_view name) {
  RegistryFile contents = RegistryFile::read(file_);
  RegistryFile::Key* from = contents.find(key);
  if (!from || !from->find(name)) return true;
  std::erase_if(from->values, [name](const RegistryFile::Value& each) { return equalsIgnoringCase(each.name, name); });
  return contents.write(file_);
}

}  // namespace tarnel
