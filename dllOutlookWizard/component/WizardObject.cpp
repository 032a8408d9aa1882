#include "WizardObject.h"

#include <fcntl.h>

#include "CCreateGuid.h"
#include "ComponentFile.h"
#include "Contained.h"
#include "ErrorReport.h"
#include "FilesInUse.h"
#include "HostTransfers.h"
#include "Identifiers.h"
#include "MailboxFile.h"
#include "OutlookTasksProject.h"
#include "ProfileArgument.h"
#include "Profiles.h"
#include "QuietPlatform.h"
#include "StandardHandler.h"
#include "Texts.h"
#include "UserFolders.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

// The object whose wizard is open on this thread: what a wizard needs is there once for each thread.
thread_local const WizardObject* standing = nullptr;

class Standing {
 public:
  explicit Standing(const WizardObject& object) { standing = &object; }
  ~Standing() { standing = nullptr; }
  Standing(const Standing&) = delete;
  Standing& operator=(const Standing&) = delete;
};

const Date firstDate = Date::of(100, 1, 1);
constexpr double mostScale = 4;

Date received(const TarnelDate* date) {
  if (!date) return {};
  if (!(*date >= firstDate.days && *date < lastDayShown().days + 1)) throw Refusal{TARNEL_INVALID_ARGUMENT};
  return {*date};
}

void requireOpen(std::int32_t descriptor) {
  if (fcntl(descriptor, F_GETFD) < 0) throw Refusal{TARNEL_INVALID_ARGUMENT};
}

// Something must have been reported.
std::string told(const ErrorReport& report) {
  const FailureReport& failure = *report.first();
  const std::string file = report.file().string();
  return "The wizard was ended by a failure in " + failure.module + "." + failure.procedure + ": " + failure.text +
         " (" + std::to_string(failure.number) + ")\n" +
         (report.firstKept()
              ? "The full report is in " + file
              : "The full report could not be written to " + file + ". Is there room, and may you write there?");
}

}  // namespace

WizardObject::WizardObject()
    : sinks_(static_cast<_clsTarnelOutWizard&>(*this),
             [this](const std::function<TarnelResult()>& operation) { return guarded(operation); }) {
  listenToWizard();
}

void WizardObject::listenToWizard() {
  const auto pass = [this](Signal<>& event, std::int32_t number) {
    events_.push_back(event.connect([this, number] { sinks_.raise(number); }));
  };
  pass(wizard_.CloseTheWizard, TARNEL_CLOSE_THE_WIZARD);
  pass(wizard_.OutlookPrefsChanged, TARNEL_OUTLOOK_PREFS_CHANGED);
  pass(wizard_.ImportFromOutlook, TARNEL_IMPORT_FROM_OUTLOOK);
  pass(wizard_.TurnOnOutlookCurrentTasks, TARNEL_TURN_ON_OUTLOOK_CURRENT_TASKS);
  pass(wizard_.TurnOffOutlookCurrentTasks, TARNEL_TURN_OFF_OUTLOOK_CURRENT_TASKS);
  pass(wizard_.MOPKilled, TARNEL_MOP_KILLED);
  events_.push_back(wizard_.UpdateOutlookSettings.connect(
      [this](std::int32_t& newTask, std::int32_t& newAppt, std::string& newProfile) {
        ProfileArgument profile(newProfile);
        std::vector<TarnelVariant> arguments(3);
        arguments[0].kind = arguments[1].kind = TARNEL_INT32 | TARNEL_BY_REFERENCE;
        arguments[0].value.int32Reference = &newTask;
        arguments[1].value.int32Reference = &newAppt;
        arguments[2].kind = TARNEL_VARIANT | TARNEL_BY_REFERENCE;
        arguments[2].value.variantReference = &profile.variant();
        sinks_.raise(TARNEL_UPDATE_OUTLOOK_SETTINGS, arguments, [&] { newProfile = profile.text(); });
      }));
}

TarnelResult WizardObject::QueryInterface(const TarnelGuid* id, void** object) {
  if (!object) return TARNEL_NULL_POINTER;
  *object = nullptr;
  if (!id) return TARNEL_NULL_POINTER;
  if (same(*id, IID_TarnelObject) || same(*id, IID__clsTarnelOutWizard))
    *object = static_cast<_clsTarnelOutWizard*>(this);
  else if (same(*id, IID_TarnelConnectionPoints))
    *object = static_cast<TarnelConnectionPoints*>(this);
  else if (same(*id, IID_TarnelWizardControl))
    *object = static_cast<TarnelWizardControl*>(this);
  else
    return TARNEL_NO_INTERFACE;
  AddRef();
  return TARNEL_OK;
}

std::uint32_t WizardObject::Release() {
  const std::uint32_t left = --references_;
  if (left == 0) delete this;
  return left;
}

TarnelResult WizardObject::guarded(const std::function<TarnelResult()>& operation) {
  if (std::this_thread::get_id() != thread_) return TARNEL_WRONG_THREAD;
  return contained(operation, [this](std::int32_t number, const std::string& text) {
    if (firstFailure_.empty()) firstFailure_ = text;
    sinks_.explain({number, text});
  });
}

TarnelResult WizardObject::SetTaskPrintSetting(const TarnelText* str, TarnelBool* result) {
  if (result) *result = TARNEL_NO;
  return guarded([&]() -> TarnelResult {
    const bool kept = wizard_.SetTaskPrintSetting(received(str));
    if (result) *result = kept ? TARNEL_YES : TARNEL_NO;
    return TARNEL_OK;
  });
}

TarnelResult WizardObject::Setup(const TarnelBool* curDoingAppts, const TarnelText* theTimeDisplay1,
                                 const TarnelText* theTimeDisplay2, const TarnelText* theszConnect,
                                 const TarnelDate* CurDate) {
  AddRef();  // the host may let go of the object inside an event
  const auto itself = Reference<WizardObject>::owning(this);
  return guarded([&]() -> TarnelResult {
    // One that is refused has no failure of its own to tell, and the one before is no answer to why.
    if (standing != this) firstFailure_.clear();
    if (!curDoingAppts) return TARNEL_NULL_POINTER;
    const Call call{*curDoingAppts != TARNEL_NO, received(theTimeDisplay1), received(theTimeDisplay2),
                    received(theszConnect), received(CurDate)};
    if (standing) return TARNEL_BUSY;
    const Standing standing(*this);
    run(call);
    return TARNEL_OK;
  });
}

// A mailbox that was named must be there; the user's own comes into being with its first use.
void WizardObject::run(const Call& call) {
  if (!mailbox_) mailbox::makeSureOfMailbox(defaultMailbox());
  Composition parts(
      [this](Registry& registry, const std::string& profile) {
        return mailbox_ ? mailbox_ : Profiles(registry).mailboxOfChosen(profile);
      },
      mailbox_.value_or(defaultMailbox()));
  const std::shared_ptr<Desktop> desktop = face_();
  ErrorReport errorReport(*desktop, parts.clock(), userFolders::state() / "errors.txt",
                          [&](FailureReport& report) { addFilesInUse(report, mailbox_, parts.registry()); });
  OutlookTasksProject outlookProject(parts.database(), GetANewGuid);
  parts.install(*desktop, errorReport, outlookProject, componentFile().parent_path(),
                mailbox_.value_or(std::filesystem::path()));
  copyAtStart(call.connection);
  wizard_.Setup(call.appointments, call.hours, call.interval, call.connection, call.date);
  if (errorReport.first()) firstFailure_ = told(errorReport);
}

TarnelResult WizardObject::FindConnectionPoint(const TarnelGuid* events, TarnelConnectionPoint** point) {
  if (!point) return TARNEL_NULL_POINTER;
  *point = nullptr;
  if (!events) return TARNEL_NULL_POINTER;
  if (!same(*events, DIID___clsTarnelOutWizard)) return TARNEL_NO_CONNECTION;
  *point = &sinks_;
  AddRef();
  return TARNEL_OK;
}

TarnelResult WizardObject::choose(const std::function<Face()>& face) {
  return guarded([&]() -> TarnelResult {
    Face chosen = face();
    if (standing) return TARNEL_BUSY;
    face_ = std::move(chosen);
    return TARNEL_OK;
  });
}

TarnelResult WizardObject::UseWindow() { return choose(windowFace); }

TarnelResult WizardObject::UseScript(std::int32_t commands, std::int32_t facts) {
  return choose([&] {
    requireOpen(commands);
    requireOpen(facts);
    return scriptFace(commands, facts);
  });
}

TarnelResult WizardObject::UsePictures(const TarnelText* folder, double scale, TarnelBool dark, std::int32_t told) {
  return choose([&] {
    const std::string path = received(folder);
    requireOpen(told);
    if (path.empty() || !(scale >= 1 && scale <= mostScale)) throw Refusal{TARNEL_INVALID_ARGUMENT};
    return picturesFace({.folder = path, .scale = scale, .dark = dark != TARNEL_NO}, told);
  });
}

TarnelResult WizardObject::UseMailbox(const TarnelText* file) {
  return guarded([&]() -> TarnelResult {
    const std::string path = received(file);
    if (standing) return TARNEL_BUSY;
    mailbox_.reset();
    if (!path.empty()) mailbox_ = std::filesystem::absolute(path);
    return TARNEL_OK;
  });
}

TarnelResult WizardObject::FirstFailure(TarnelText* text) {
  if (!text) return TARNEL_NULL_POINTER;
  *text = {};
  return guarded([&]() -> TarnelResult {
    if (firstFailure_.empty()) return TARNEL_FALSE;
    *text = handedBack(firstFailure_);
    return TARNEL_OK;
  });
}

TarnelResult WizardObject::ExplainFailure(std::int32_t number, const TarnelText* text) {
  return guarded([&]() -> TarnelResult {
    if (!sinks_.isRaising()) return TARNEL_NO_WIZARD;
    sinks_.explain({number, received(text)});
    return TARNEL_OK;
  });
}

TarnelResult WizardObject::insideEvent(const std::function<bool()>& act) {
  return guarded([&]() -> TarnelResult {
    if (standing != this || !sinks_.isRaising()) return TARNEL_NO_WIZARD;
    return act() ? TARNEL_OK : TARNEL_FALSE;
  });
}

TarnelResult WizardObject::CopyCurrentTasks() { return insideEvent(copyCurrentTasks); }
TarnelResult WizardObject::ImportOutlookTasks() { return insideEvent(importOutlookTasks); }

TarnelResult WizardObject::CopyTaskAppointments() { return insideEvent(copyTaskAppointments); }

TarnelResult WizardObject::CopyAtStart(TarnelBool currentTasks, TarnelBool taskAppointments) {
  return guarded([&]() -> TarnelResult {
    if (standing) return TARNEL_BUSY;
    copiesTasksAtStart_ = currentTasks != TARNEL_NO;
    copiesAppointmentsAtStart_ = taskAppointments != TARNEL_NO;
    return TARNEL_OK;
  });
}

// Before there is a form: a failure is reported, but it doesn't keep the user out of the wizard, where the mode can be
// changed. What stopped the one copy would stop the other, too.
void WizardObject::copyAtStart(const std::string& connection) const {
  if (!copiesTasksAtStart_ && !copiesAppointmentsAtStart_) return;
  session().theszConnect = connection;
  const QuietPlatform quiet;
  if (!ignoringFailures(readSettingsForTransfers)) return;  // the wizard itself tells of that
  standardHandler(modules::clsTarnelOutWizard, "CopyAtStart", [this] {
    if (copiesTasksAtStart_ && !copyCurrentTasks()) return;
    if (copiesAppointmentsAtStart_) copyTaskAppointments();
  });
}

TarnelResult WizardObject::TellUser(const TarnelText* text) {
  return insideEvent([text] {
    tellUser(received(text));
    return true;
  });
}

}  // namespace tarnel
