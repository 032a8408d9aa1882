#include "WizardFactory.h"

#include "Contained.h"
#include "Identifiers.h"
#include "Reference.h"
#include "WizardObject.h"

namespace tarnel {

TarnelResult WizardFactory::QueryInterface(const TarnelGuid* id, void** object) {
  if (!object) return TARNEL_NULL_POINTER;
  *object = nullptr;
  if (!id) return TARNEL_NULL_POINTER;
  if (!same(*id, IID_TarnelObject) && !same(*id, IID_TarnelClassFactory)) return TARNEL_NO_INTERFACE;
  *object = static_cast<TarnelClassFactory*>(this);
  AddRef();
  return TARNEL_OK;
}

std::uint32_t WizardFactory::Release() {
  const std::uint32_t left = --references_;
  if (left == 0) delete this;
  return left;
}

TarnelResult WizardFactory::CreateInstance(TarnelObject* outer, const TarnelGuid* id, void** object) {
  if (!object) return TARNEL_NULL_POINTER;
  *object = nullptr;
  if (!id) return TARNEL_NULL_POINTER;
  if (outer) return TARNEL_NO_AGGREGATION;
  return contained([&] {
    const auto instance = Reference<WizardObject>::owning(new WizardObject);
    return instance->QueryInterface(id, object);
  });
}

TarnelResult WizardFactory::LockServer(TarnelBool lock) {
  lock ? Live::lock() : Live::unlock();
  return TARNEL_OK;
}

}  // namespace tarnel
