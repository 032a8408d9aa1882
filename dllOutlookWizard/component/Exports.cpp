#include "Contained.h"
#include "FileRegistry.h"
#include "Identifiers.h"
#include "Live.h"
#include "Reference.h"
#include "Registration.h"
#include "UserFolders.h"
#include "WizardFactory.h"

namespace tarnel {
namespace {

TarnelResult onUsersRegistry(bool (*act)(Registry&)) {
  return contained([act]() -> TarnelResult {
    FileRegistry registry(userFolders::registry());
    return act(registry) ? TARNEL_OK : TARNEL_NOT_REGISTERED;
  });
}

}  // namespace
}  // namespace tarnel

using namespace tarnel;

TarnelResult DllCanUnloadNow() { return Live::none() ? TARNEL_OK : TARNEL_FALSE; }

TarnelResult DllGetClassObject(const TarnelGuid* classId, const TarnelGuid* id, void** object) {
  if (!object) return TARNEL_NULL_POINTER;
  *object = nullptr;
  if (!classId || !id) return TARNEL_NULL_POINTER;
  if (!same(*classId, CLSID_clsTarnelOutWizard)) return TARNEL_NO_CLASS;
  return contained([&] {
    const auto factory = Reference<WizardFactory>::owning(new WizardFactory);
    return factory->QueryInterface(id, object);
  });
}

TarnelResult DllRegisterServer() { return onUsersRegistry(registerClass); }
TarnelResult DllUnregisterServer() { return onUsersRegistry(unregisterClass); }
