#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "Provider.h"
#include "TarnelOutWizard.h"
#include "Variant.h"

namespace tarnel::host {

using EventArguments = std::vector<std::pair<std::string, Variant>>;
using EventTeller = std::function<void(const std::string& name, const EventArguments& arguments)>;

// What this host does with the wizard's events: tells of each as it comes, and acts on three. It keeps the chosen
// profile, in the one row of the settings that is for it, and brings both sides in line with a new mode through the
// wizard's own transfers, which tell the user their counts. The ends of a mode ask for nothing: the modes are stored by
// the wizard, and the Outlook project was ended before.
class WizardEvents final : public __clsTarnelOutWizard {
 public:
  // Stays on the stack of whoever connects it, and must be disconnected before it goes; all must outlive it.
  WizardEvents(TarnelWizardControl& control, ado::Provider& database, std::string connection, EventTeller tell)
      : control_(control), database_(database), connection_(std::move(connection)), tell_(std::move(tell)) {}

  TarnelResult QueryInterface(const TarnelGuid* id, void** object) override;
  std::uint32_t AddRef() override { return 1; }
  std::uint32_t Release() override { return 1; }
  TarnelResult Invoke(std::int32_t event, TarnelVariant* arguments, std::uint32_t count) override;

 private:
  TarnelResult act(std::int32_t event, const TarnelVariant* arguments);
  void noteModes(const TarnelVariant* arguments);
  TarnelResult carryOutModes();
  void keepProfile(const std::string& profile) const;

  TarnelWizardControl& control_;
  ado::Provider& database_;
  std::string connection_;
  EventTeller tell_;
  // What a new mode asks for and no event of its own will bring.
  bool copiesTasks_ = false;
  bool copiesAppointments_ = false;
};

}  // namespace tarnel::host
