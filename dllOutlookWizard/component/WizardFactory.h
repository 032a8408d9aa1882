#pragma once

#include <atomic>

#include "Live.h"
#include "TarnelOutWizard.h"

namespace tarnel {

// What DllGetClassObject gives a host: makes the wizard objects.
class WizardFactory final : public TarnelClassFactory, private Live {
 public:
  TarnelResult QueryInterface(const TarnelGuid* id, void** object) override;
  std::uint32_t AddRef() override { return ++references_; }
  std::uint32_t Release() override;
  TarnelResult CreateInstance(TarnelObject* outer, const TarnelGuid* id, void** object) override;
  TarnelResult LockServer(TarnelBool lock) override;

 private:
  std::atomic<std::uint32_t> references_{1};
};

}  // namespace tarnel
