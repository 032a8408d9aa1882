#include "Registration.h"

#include "CRegistry.h"
#include "ComponentFile.h"
#include "Identifiers.h"

namespace tarnel {
namespace {

constexpr const char* className = "TarnelOutWizard.clsTarnelOutWizard";
constexpr const char* ofTheKeyItself = "";

std::string classesPath(const std::string& key) {
  return CRegistry::pathOf(rootKey::currentUser, "Software\\Classes\\" + key);
}
std::string classPath() { return classesPath("CLSID\\" + textOf(CLSID_clsTarnelOutWizard)); }

bool writeEntry(Registry& registry) {
  const std::string path = classPath();
  return registry.setValue(path, ofTheKeyItself, className) &&
         registry.setValue(path + "\\InprocServer32", ofTheKeyItself, componentFile().string()) &&
         registry.setValue(path + "\\InprocServer32", "ThreadingModel", "Apartment") &&
         registry.setValue(path + "\\TypeLib", ofTheKeyItself, textOf(LIBID_TarnelOutWizard)) &&
         registry.setValue(classesPath(className) + "\\CLSID", ofTheKeyItself, textOf(CLSID_clsTarnelOutWizard));
}

}  // namespace

bool registerClass(Registry& registry) {
  const auto held = registry.hold();
  if (writeEntry(registry)) return true;
  unregisterClass(registry);
  return false;
}

bool unregisterClass(Registry& registry) {
  const auto held = registry.hold();
  const bool classGone = registry.deleteKey(classPath());
  return registry.deleteKey(classesPath(className)) && classGone;
}

}  // namespace tarnel
