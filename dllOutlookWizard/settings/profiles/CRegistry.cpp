#include "CRegistry.h"

#include <algorithm>
#include <exception>

#include "Failure.h"
#include "Platform.h"

namespace tarnel {
namespace {

constexpr const char* source = "TarnelOutWizard.CRegistry";

template <class Body>
auto raisingComponentFailure(Body&& body) {
  try {
    return body();
  } catch (const std::exception&) {
    throw Failure(static_cast<std::int32_t>(0x80044653), "CRegistry component failure", source);
  }
}

void requireName(std::string_view KeyName) {
  if (KeyName.empty()) throw Failure(static_cast<std::int32_t>(0x80044651), "Invalid KeyName value", source);
}

}  // namespace

std::string CRegistry::pathOf(std::uint32_t RootKey, std::string_view KeyName) {
  std::string path;
  if (RootKey == rootKey::classesRoot) path = "HKEY_CLASSES_ROOT";
  if (RootKey == rootKey::currentUser) path = "HKEY_CURRENT_USER";
  if (!KeyName.empty()) path.append("\\").append(KeyName);
  return path;
}

bool CRegistry::KeyExists(std::string_view KeyName) const {
  requireName(KeyName);
  return raisingComponentFailure([&] { return platform().registry.keyExists(pathOf(root_, KeyName)); });
}

std::int32_t CRegistry::GetAllSubKeys(std::string_view KeyName, std::vector<std::string>& Names) const {
  return raisingComponentFailure([&] {
    Names = platform().registry.subKeys(pathOf(root_, KeyName));
    for (std::string& name : Names) name.resize(std::min(name.size(), name.find('\0')));
    return static_cast<std::int32_t>(Names.size());
  });
}

}  // namespace tarnel
