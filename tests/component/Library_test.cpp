#include <array>
#include <set>

#include "ComponentHost.h"

namespace tarnel::test {
namespace {

using ClassObject = decltype(DllGetClassObject);

std::string outputOf(const ProgramRun& user, const std::string& command) {
  EXPECT_EQ(std::system((command + " >'" + (user.home / "output").string() + "'").c_str()), 0) << command;
  return contentsOf(user.home / "output");
}

// All that looks like an identifier, in upper case.
std::set<std::string> identifiersIn(const std::string& text) {
  std::set<std::string> found;
  for (std::size_t at = 0; (at = text.find("uuid(", at)) != std::string::npos; ++at)
    found.insert(text.substr(at + 5, 36));
  return found;
}

std::string textOf(const TarnelGuid& id) {
  std::array<char, 37> text{};
  const auto& last = id.data4;
  std::snprintf(text.data(), text.size(), "%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X", id.data1, id.data2,
                id.data3, last[0], last[1], last[2], last[3], last[4], last[5], last[6], last[7]);
  return text.data();
}

TEST_F(Component, exportsFourFunctionsAndNothingElse) {
  EXPECT_EQ(outputOf(user, "nm -D --defined-only --extern-only '" TARNEL_COMPONENT "' | sed 's/.* T //' | sort"),
            "DllCanUnloadNow\nDllGetClassObject\nDllRegisterServer\nDllUnregisterServer\n");
}

TEST_F(Component, idlBearsTheHeadersIdentifiers) {
  std::set<std::string> expected;
  for (const TarnelGuid& id : {CLSID_clsTarnelOutWizard, LIBID_TarnelOutWizard, IID_TarnelObject,
                               IID_TarnelClassFactory, IID_TarnelConnectionPoints, IID_TarnelConnectionPoint,
                               IID__clsTarnelOutWizard, DIID___clsTarnelOutWizard, IID_TarnelWizardControl})
    expected.insert(textOf(id));
  EXPECT_EQ(identifiersIn(contentsOf(TARNEL_INTERFACE_FOLDER "/TarnelOutWizard.idl")), expected);
}

TEST_F(Component, wrongIdsAndNullPointersAreAnsweredAndCountNothing) {
  const auto classObject = library.function<ClassObject>("DllGetClassObject");
  void* object = &object;
  EXPECT_EQ(classObject(&LIBID_TarnelOutWizard, &IID_TarnelClassFactory, &object), TARNEL_NO_CLASS);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(classObject(&CLSID_clsTarnelOutWizard, &IID_TarnelWizardControl, &object), TARNEL_NO_INTERFACE);
  EXPECT_EQ(classObject(nullptr, &IID_TarnelClassFactory, &object), TARNEL_NULL_POINTER);
  EXPECT_EQ(classObject(&CLSID_clsTarnelOutWizard, nullptr, &object), TARNEL_NULL_POINTER);
  EXPECT_EQ(classObject(&CLSID_clsTarnelOutWizard, &IID_TarnelClassFactory, nullptr), TARNEL_NULL_POINTER);
  {
    const auto factory = library.factory();
    EXPECT_EQ(factory->CreateInstance(factory.get(), &IID_TarnelObject, &object), TARNEL_NO_AGGREGATION);
    EXPECT_EQ(factory->CreateInstance(nullptr, &DIID___clsTarnelOutWizard, &object), TARNEL_NO_INTERFACE);
    EXPECT_EQ(factory->CreateInstance(nullptr, nullptr, &object), TARNEL_NULL_POINTER);
    EXPECT_EQ(factory->CreateInstance(nullptr, &IID_TarnelObject, nullptr), TARNEL_NULL_POINTER);
    const Wizard wizard(library, user);
    EXPECT_EQ(wizard.wizard->QueryInterface(&CLSID_clsTarnelOutWizard, &object), TARNEL_NO_INTERFACE);
    EXPECT_EQ(wizard.wizard->QueryInterface(nullptr, &object), TARNEL_NULL_POINTER);
    for (const auto& [id, result] : {std::pair{&IID__clsTarnelOutWizard, TARNEL_NO_INTERFACE},
                                     {static_cast<const TarnelGuid*>(nullptr), TARNEL_NULL_POINTER}}) {
      object = &object;
      EXPECT_EQ(wizard.point->QueryInterface(id, &object), result);
      EXPECT_EQ(object, nullptr);
    }
    EXPECT_EQ(wizard.point->QueryInterface(&IID_TarnelObject, &object), TARNEL_OK);
    static_cast<TarnelObject*>(object)->Release();
  }
  EXPECT_EQ(library.canUnloadNow(), TARNEL_OK);
}

TEST_F(Component, objectsOutliveTheHostsHoldOnTheLibrary) {
  {
    auto passing = std::make_unique<Library>();
    Wizard wizard(*passing, user);
    EXPECT_EQ(passing->canUnloadNow(), TARNEL_FALSE);
    passing.reset();
    EXPECT_EQ(wizard.setUp("show\n"), TARNEL_OK);
  }
  EXPECT_EQ(library.canUnloadNow(), TARNEL_OK);
  library.factory()->LockServer(TARNEL_YES);
  EXPECT_EQ(library.canUnloadNow(), TARNEL_FALSE);
  for (int i = 0; i < 2; ++i) library.factory()->LockServer(TARNEL_NO);
  EXPECT_EQ(library.canUnloadNow(), TARNEL_OK) << "one unlock more than locks";
}

TEST_F(Component, registrationIsWrittenAndTakenAwayAlone) {
  const auto registerServer = library.function<decltype(DllRegisterServer)>("DllRegisterServer");
  const auto unregisterServer = library.function<decltype(DllUnregisterServer)>("DllUnregisterServer");
  const auto registry = user.home / "tarnel/registry";
  EXPECT_EQ(user("profile add Work work.mailbox").exitCode, 0);
  const std::string before = contentsOf(registry);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(registerServer(), TARNEL_OK);
  const std::string written = contentsOf(registry);
  EXPECT_NE(written.find("CLSID\\\\{" + textOf(CLSID_clsTarnelOutWizard) + "}"), std::string::npos) << written;
  EXPECT_NE(written.find(TARNEL_COMPONENT), std::string::npos) << written;
  for (int i = 0; i < 2; ++i) EXPECT_EQ(unregisterServer(), TARNEL_OK);
  EXPECT_EQ(user("profile list").output.substr(0, 5), "Work\t");
  EXPECT_EQ(contentsOf(registry).find("CLSID\\\\{"), std::string::npos);
  setenv("XDG_CONFIG_HOME", "/proc", 1);
  EXPECT_EQ(registerServer(), TARNEL_NOT_REGISTERED);
}

TEST_F(Component, hostInPlainCOpensTheWizardAndHearsItsEvents) {
  user.home.write("commands", "tab 2\nclick smtSettings APPT4\nclick smtActions UPDATE\n");
  const std::string call = "cd '" + user.home.path().string() + "' && '" TARNEL_EXAMPLE "' ";
  EXPECT_EQ(outputOf(user, call + "tasks.db - '" TARNEL_COMPONENT "' <commands | grep -v '{\"reply\"'"),
            "event 7 UpdateOutlookSettings tasks=2 appointments=3 profile=\n"
            "event 2 OutlookPrefsChanged\nevent 1 CloseTheWizard\n");
  EXPECT_NE(std::system((call + "tasks.db - /nowhere.so 2>/dev/null").c_str()), 0);
}

}  // namespace
}  // namespace tarnel::test
