#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "Date.h"
#include "Signal.h"

namespace tarnel {

class frmOutWiz;

// The wizard as its host sees it: one instance is one wizard window at a time. Everything happens on the
// thread that made the instance; the host's handlers run inside Setup, and the wizard goes on when they return.
class clsTarnelOutWizard {
 public:
  clsTarnelOutWizard();
  ~clsTarnelOutWizard();
  clsTarnelOutWizard(const clsTarnelOutWizard&) = delete;
  clsTarnelOutWizard& operator=(const clsTarnelOutWizard&) = delete;

  // Keeps the print settings, a CStringBag text, for the help topics of this run. Always true.
  bool SetTaskPrintSetting(const std::string& settings);
  // Shows the wizard and returns when it has gone. `theTimeDisplay1` is "ALL" or "DAY", `theTimeDisplay2` one of "M60",
  // "M30", "M20", "M15", "M10", "M5" and "M1"; any other text counts as the first. `theszConnect` is an ADO connection
  // string; an empty one means the database that the settings file names. A `CurDate` up to day 1000 means today.
  void Setup(bool curDoingAppts, const std::string& theTimeDisplay1, const std::string& theTimeDisplay2,
             const std::string& theszConnect, Date CurDate = {});

  // What the host hears of, in the order of the outgoing interface.
  Signal<> CloseTheWizard;
  Signal<> OutlookPrefsChanged;
  Signal<> ImportFromOutlook;
  Signal<> TurnOnOutlookCurrentTasks;
  Signal<> TurnOffOutlookCurrentTasks;
  Signal<> MOPKilled;
  // The chosen modes, 0 to 3, and the profile. A profile that a handler puts there is the session's from then on; the
  // modes go on as the user chose them.
  Signal<std::int32_t&, std::int32_t&, std::string&> UpdateOutlookSettings;

 private:
  void listenToForm();
  void letGoOfForm();
  void frm_CloseWiz();

  std::shared_ptr<frmOutWiz> frm;  // the system's own name for it; empty while no form lives
  std::vector<Connection> formEvents_;
};

}  // namespace tarnel
