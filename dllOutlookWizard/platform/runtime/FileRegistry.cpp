#include "FileRegistry.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "Conversions.h"
#include "RegistryFile.h"

namespace tarnel {
namespace {

// Whether `path` lies below `key`, at any depth.
bool isBelow(std::string_view path, std::string_view key) {
  return path.size() > key.size() && path[key.size()] == '\\' && equalsIgnoringCase(path.substr(0, key.size()), key);
}

// The lock of a file, which the system takes back from a program that ends.
class Lock {
 public:
  explicit Lock(const std::filesystem::path& file)
      : descriptor_(open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
    while (descriptor_ >= 0 && flock(descriptor_, LOCK_EX) != 0 && errno == EINTR) {
    }
  }
  ~Lock() {
    if (descriptor_ >= 0) close(descriptor_);
  }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

 private:
  int descriptor_;
};

}  // namespace

// The registry's own file can't be locked: each write puts another one in its place. A folder that takes no lock takes
// no registry either, which the write tells.
std::shared_ptr<void> FileRegistry::hold() {
  if (auto held = held_.lock()) return held;
  std::error_code error;
  std::filesystem::path file = std::filesystem::weakly_canonical(file_, error);
  if (error) file = file_;
  std::filesystem::create_directories(file.parent_path(), error);
  auto lock = std::make_shared<Lock>(file += ".lock");
  held_ = lock;
  return lock;
}

bool FileRegistry::change(const std::function<bool(RegistryFile&)>& work) {
  const auto held = hold();
  RegistryFile contents = RegistryFile::read(file_);
  return !work(contents) || contents.write(file_);
}

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
  return change([key](RegistryFile& contents) {
    if (contents.find(key)) return false;
    contents.make(key);
    return true;
  });
}

bool FileRegistry::setValue(std::string_view key, std::string_view name, const Variant& value) {
  if (!value.is<std::string>() && !value.is<std::int32_t>() && !value.is<Bytes>()) return false;
  return change([&](RegistryFile& contents) {
    RegistryFile::Key& into = contents.make(key);
    if (RegistryFile::Value* there = into.find(name))
      there->value = value;
    else
      into.values.push_back({std::string(name), value});
    return true;
  });
}

bool FileRegistry::deleteKey(std::string_view key) {
  return change([key](RegistryFile& contents) {
    return std::erase_if(contents.keys, [key](const RegistryFile::Key& each) {
             return equalsIgnoringCase(each.path, key) || isBelow(each.path, key);
           }) > 0;
  });
}

bool FileRegistry::deleteValue(std::string_view key, std::string_view name) {
  return change([&](RegistryFile& contents) {
    RegistryFile::Key* from = contents.find(key);
    const auto gone = [name](const RegistryFile::Value& each) { return equalsIgnoringCase(each.name, name); };
    return from && std::erase_if(from->values, gone) > 0;
  });
}

}  // namespace tarnel
