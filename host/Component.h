#pragma once

#include <filesystem>
#include <memory>

#include "TarnelOutWizard.h"

namespace tarnel::host {

// Gives a reference back.
struct Release {
  void operator()(TarnelObject* object) const { object->Release(); }
};
template <class Interface>
using Held = std::unique_ptr<Interface, Release>;

// The wizard's component, loaded at run time: from where it lies beside this program, or else from where the user's
// registry says. Failure 53 when there is none in either place, 429 when what is there can't be used; the texts name
// the files.
class Component {
 public:
  Component();

  _clsTarnelOutWizard& wizard() const { return *wizard_; }
  TarnelWizardControl& control() const { return *control_; }
  TarnelConnectionPoint& events() const { return *events_; }

 private:
  Held<_clsTarnelOutWizard> wizard_;
  Held<TarnelWizardControl> control_;
  Held<TarnelConnectionPoint> events_;
};

// Failure when a call of the component gave a failure, in the component's own words where it has some.
void require(TarnelResult result, const Component& component);

}  // namespace tarnel::host
