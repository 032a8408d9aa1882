#include "HostEvents.h"

#include "clsTarnelOutWizard.h"

namespace tarnel::host {

HostEvents::HostEvents(clsTarnelOutWizard& wizard, EventTeller tell) : tell_(std::move(tell)) {
  const auto listen = [this](Signal<>& event, const char* name) {
    connections_.push_back(event.connect([this, name] { tell_(name, {}); }));
  };
  listen(wizard.CloseTheWizard, "CloseTheWizard");
  listen(wizard.OutlookPrefsChanged, "OutlookPrefsChanged");
  listen(wizard.ImportFromOutlook, "ImportFromOutlook");
  listen(wizard.TurnOnOutlookCurrentTasks, "TurnOnOutlookCurrentTasks");
  listen(wizard.TurnOffOutlookCurrentTasks, "TurnOffOutlookCurrentTasks");
  listen(wizard.MOPKilled, "MOPKilled");
  connections_.push_back(wizard.UpdateOutlookSettings.connect(
      [this](std::int32_t& newTask, std::int32_t& newAppt, std::string& newProfile) {
        tell_("UpdateOutlookSettings", {{"newTask", newTask}, {"newAppt", newAppt}, {"newProfile", newProfile}});
      }));
}

}  // namespace tarnel::host
