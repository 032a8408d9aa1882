#include "Component.h"

#include <dlfcn.h>

#include <array>
#include <cstdio>
#include <string>
#include <utility>

#include "CRegistry.h"
#include "Conversions.h"
#include "Failure.h"
#include "FileRegistry.h"
#include "UserFolders.h"

namespace tarnel::host {
namespace {

namespace fs = std::filesystem;

constexpr const char* className = "TarnelOutWizard.clsTarnelOutWizard";

// The same in the build tree and where the program is installed.
fs::path besideProgram() {
  return fs::read_symlink("/proc/self/exe").parent_path().parent_path() / "lib/tarnel/libTarnelOutWizard.so";
}

fs::path registered() {
  const FileRegistry registry(userFolders::registry());
  const auto read = [&registry](const std::string& key) {
    return textOrEmpty(registry.value(CRegistry::pathOf(rootKey::currentUser, "Software\\Classes\\" + key), ""));
  };
  return read("CLSID\\" + read(std::string(className) + "\\CLSID") + "\\InprocServer32");
}

[[noreturn]] void failUnusable(const fs::path& file, const std::string& why) {
  throw Failure(failure::noSuchObject, "The wizard's component \"" + file.string() + "\" can't be used: " + why +
                                           ". Install the program again, component and all.");
}

fs::path locate() {
  fs::path beside = besideProgram();
  if (fs::exists(beside)) return beside;
  fs::path elsewhere = registered();
  if (!elsewhere.empty() && fs::exists(elsewhere)) return elsewhere;
  throw Failure(failure::fileNotFound, "The wizard's component is missing: it is neither \"" + beside.string() +
                                           "\" nor registered for you. Install the program again, component and all.");
}

// The library stays loaded: it is part of the program from here on.
TarnelGetClassObject load(const fs::path& file) {
  void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* function = library ? dlsym(library, "DllGetClassObject") : nullptr;
  if (!function) failUnusable(file, dlerror());
  return reinterpret_cast<TarnelGetClassObject>(function);
}

std::string hex(TarnelResult result) {
  std::array<char, 11> text{};
  std::snprintf(text.data(), text.size(), "0x%08X", static_cast<unsigned>(result));
  return text.data();
}

// Asks an object, or what is used as one, for an interface.
template <class Interface, class Ask>
Held<Interface> ask(const fs::path& file, Ask&& give) {
  void* object = nullptr;
  const TarnelResult result = std::forward<Ask>(give)(&object);
  if (result < 0) failUnusable(file, "it doesn't know what it is asked for (" + hex(result) + ")");
  return Held<Interface>(static_cast<Interface*>(object));
}

}  // namespace

Component::Component() {
  const fs::path file = locate();
  const TarnelGetClassObject classObject = load(file);
  const auto factory = ask<TarnelClassFactory>(
      file, [&](void** object) { return classObject(&CLSID_clsTarnelOutWizard, &IID_TarnelClassFactory, object); });
  wizard_ = ask<_clsTarnelOutWizard>(
      file, [&](void** object) { return factory->CreateInstance(nullptr, &IID__clsTarnelOutWizard, object); });
  control_ = ask<TarnelWizardControl>(
      file, [&](void** object) { return wizard_->QueryInterface(&IID_TarnelWizardControl, object); });
  const auto points = ask<TarnelConnectionPoints>(
      file, [&](void** object) { return wizard_->QueryInterface(&IID_TarnelConnectionPoints, object); });
  events_ = ask<TarnelConnectionPoint>(file, [&](void** object) {
    TarnelConnectionPoint* point = nullptr;
    const TarnelResult result = points->FindConnectionPoint(&DIID___clsTarnelOutWizard, &point);
    *object = point;
    return result;
  });
}

void require(TarnelResult result, const Component& component) {
  if (result >= 0) return;
  TarnelText text{};
  component.control().FirstFailure(&text);
  const std::unique_ptr<char, decltype(&std::free)> freed(text.bytes, &std::free);
  throw Failure(result, text.length > 0 ? std::string(text.bytes, text.length)
                                        : "The wizard's component refused a call with the result " + hex(result));
}

}  // namespace tarnel::host
