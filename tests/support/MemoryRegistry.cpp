#include "MemoryRegistry.h"

#include <algorithm>

#include "Conversions.h"

namespace tarnel::test {

struct MemoryRegistry::Key {
  std::string name;
  std::vector<std::pair<std::string, Variant>> values;
  std::vector<std::unique_ptr<Key>> keys;

  Key* child(std::string_view wanted) const {
    for (const auto& key : keys)
      if (equalsIgnoringCase(key->name, wanted)) return key.get();
    return nullptr;
  }

  auto value(std::string_view wanted) {
    return std::find_if(values.begin(), values.end(),
                        [&](const auto& value) { return equalsIgnoringCase(value.first, wanted); });
  }
};

namespace {

std::vector<std::string> parts(std::string_view path) {
  std::vector<std::string> found;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find('\\'), path.size());
    if (end > 0) found.emplace_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return found;
}

}  // namespace

MemoryRegistry::MemoryRegistry() : root_(std::make_unique<Key>()) {}
MemoryRegistry::~MemoryRegistry() = default;

MemoryRegistry::Key* MemoryRegistry::find(std::string_view path) const {
  Key* key = root_.get();
  for (const std::string& part : parts(path))
    if (key) key = key->child(part);
  return key;
}

bool MemoryRegistry::keyExists(std::string_view key) const { return find(key) != nullptr; }

std::vector<std::string> MemoryRegistry::subKeys(std::string_view key) const {
  std::vector<std::string> names;
  if (const Key* found = find(key))
    for (const auto& child : found->keys) names.push_back(child->name);
  return names;
}

std::vector<std::string> MemoryRegistry::valueNames(std::string_view key) const {
  std::vector<std::string> names;
  if (const Key* found = find(key))
    for (const auto& [name, value] : found->values) names.push_back(name);
  return names;
}

Variant MemoryRegistry::value(std::string_view key, std::string_view name) const {
  Key* found = find(key);
  if (!found) return {};
  const auto value = found->value(name);
  return value == found->values.end() ? Variant() : value->second;
}

bool MemoryRegistry::createKey(std::string_view key) {
  if (!writable) return false;
  Key* at = root_.get();
  for (const std::string& part : parts(key)) {
    if (!at->child(part)) {
      at->keys.push_back(std::make_unique<Key>());
      at->keys.back()->name = part;
    }
    at = at->child(part);
  }
  return true;
}

bool MemoryRegistry::setValue(std::string_view key, std::string_view name, const Variant& value) {
  if (!createKey(key)) return false;
  Key* found = find(key);
  const auto at = found->value(name);
  if (at == found->values.end())
    found->values.emplace_back(name, value);
  else
    at->second = value;
  return true;
}

bool MemoryRegistry::deleteKey(std::string_view key) {
  if (!writable) return false;
  const Key* gone = find(key);
  const std::size_t cut = key.rfind('\\');
  Key* parent = cut == std::string_view::npos ? root_.get() : find(key.substr(0, cut));
  if (gone && parent) std::erase_if(parent->keys, [gone](const auto& child) { return child.get() == gone; });
  return true;
}

bool MemoryRegistry::deleteValue(std::string_view key, std::string_view name) {
  if (!writable) return false;
  if (Key* found = find(key))
    if (const auto at = found->value(name); at != found->values.end()) found->values.erase(at);
  return true;
}

}  // namespace tarnel::test
