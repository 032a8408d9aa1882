#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "Signal.h"
#include "Variant.h"

namespace tarnel {
class clsTarnelOutWizard;
}

namespace tarnel::host {

using EventArguments = std::vector<std::pair<std::string, Variant>>;
using EventTeller = std::function<void(const std::string& name, const EventArguments& arguments)>;

// Listens to the wizard's seven events for as long as it lives, and tells of each as it comes.
class HostEvents {
 public:
  HostEvents(clsTarnelOutWizard& wizard, EventTeller tell);

 private:
  EventTeller tell_;
  std::vector<Connection> connections_;
};

}  // namespace tarnel::host
