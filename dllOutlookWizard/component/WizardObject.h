#pragma once

#include <atomic>
#include <filesystem>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "ConnectionPoint.h"
#include "Date.h"
#include "Faces.h"
#include "Live.h"
#include "Signal.h"
#include "TarnelOutWizard.h"
#include "clsTarnelOutWizard.h"

namespace tarnel {

// clsTarnelOutWizard as hosts call it, with all that a wizard needs around it: each Setup brings up the parts
// and the face, and takes them down again. A host that does nothing but call Setup gets a working wizard.
class WizardObject final : public _clsTarnelOutWizard,
                           public TarnelConnectionPoints,
                           public TarnelWizardControl,
                           private Live {
 public:
  // With one reference, the caller's.
  WizardObject();

  TarnelResult QueryInterface(const TarnelGuid* id, void** object) override;
  std::uint32_t AddRef() override { return ++references_; }
  std::uint32_t Release() override;

  TarnelResult SetTaskPrintSetting(const TarnelText* str, TarnelBool* result) override;
  TarnelResult Setup(const TarnelBool* curDoingAppts, const TarnelText* theTimeDisplay1,
                     const TarnelText* theTimeDisplay2, const TarnelText* theszConnect,
                     const TarnelDate* CurDate) override;

  TarnelResult FindConnectionPoint(const TarnelGuid* events, TarnelConnectionPoint** point) override;

  TarnelResult UseWindow() override;
  TarnelResult UseScript(std::int32_t commands, std::int32_t facts) override;
  TarnelResult UsePictures(const TarnelText* folder, double scale, TarnelBool dark, std::int32_t told) override;
  TarnelResult UseMailbox(const TarnelText* file) override;
  TarnelResult FirstFailure(TarnelText* text) override;
  TarnelResult ExplainFailure(std::int32_t number, const TarnelText* text) override;
  TarnelResult CopyCurrentTasks() override;
  TarnelResult ImportOutlookTasks() override;
  TarnelResult TellUser(const TarnelText* text) override;
  TarnelResult CopyTaskAppointments() override;
  TarnelResult CopyAtStart(TarnelBool currentTasks, TarnelBool taskAppointments) override;

 private:
  struct Call {
    bool appointments;
    std::string hours, interval, connection;
    Date date;
  };

  ~WizardObject() = default;
  // Runs an operation that came from the host.
  TarnelResult guarded(const std::function<TarnelResult()>& operation);
  TarnelResult choose(const std::function<Face()>& face);
  // What handlers alone may call, which answers whether it came to its end.
  TarnelResult insideEvent(const std::function<bool()>& act);
  void listenToWizard();
  void copyAtStart(const std::string& connection) const;
  void run(const Call& call);

  std::atomic<std::uint32_t> references_{1};
  std::thread::id thread_ = std::this_thread::get_id();
  Face face_ = windowFace();
  std::optional<std::filesystem::path> mailbox_;
  bool copiesTasksAtStart_ = false;
  bool copiesAppointmentsAtStart_ = false;
  std::string firstFailure_;  // empty: none
  ConnectionPoint sinks_;
  clsTarnelOutWizard wizard_;
  std::vector<Connection> events_;
};

}  // namespace tarnel
