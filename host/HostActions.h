#pragma once

#include <string>
#include <vector>

#include "Provider.h"
#include "Signal.h"

namespace tarnel {
class TarnelUtilities;
class clsTarnelOutWizard;
}  // namespace tarnel

namespace tarnel::host {

// What this host does when the wizard tells it of a change of the settings: keeps the chosen profile, and brings both
// sides in line with the new tasks mode through the wizard's own transfers, which tell the user their counts. The ends
// of a mode ask for nothing: the modes are stored by the wizard, and the Outlook project was ended before.
class HostActions {
 public:
  // All must outlive this object.
  HostActions(clsTarnelOutWizard& wizard, ado::Provider& database, std::string connection, TarnelUtilities& utilities);

 private:
  void keepProfile(const std::string& profile) const;
  // Takes the open Outlook tasks that are linked to no task into the Outlook Tasks Project.
  void importFromOutlook() const;
  // Puts the Current list into Outlook.
  static void copyCurrentTasks();
  void makeSureOfOutlookProject() const;

  ado::Provider& database_;
  std::string connection_;
  TarnelUtilities& utilities_;
  std::vector<Connection> connections_;
};

}  // namespace tarnel::host
