#include "clsTarnelOutWizard.h"

#include "Platform.h"
#include "StandardHandler.h"
#include "frmOutWiz.h"
#include "m_OutlookWizard.h"

namespace tarnel {

clsTarnelOutWizard::clsTarnelOutWizard() { session().theWizardClass = this; }

clsTarnelOutWizard::~clsTarnelOutWizard() { session().theWizardClass = nullptr; }

bool clsTarnelOutWizard::SetTaskPrintSetting(const std::string& settings) {
  session().theTaskPrintSetting = settings;
  return true;
}

void clsTarnelOutWizard::Setup(bool curDoingAppts, const std::string& theTimeDisplay1,
                               const std::string& theTimeDisplay2, const std::string& theszConnect, Date CurDate) {
  // This copy outlasts frm, and the handler too, which unloads it: the form closes from within its own procedures.
  std::shared_ptr<frmOutWiz> form;
  standardHandler(modules::clsTarnelOutWizard, "Setup", [&] {
    session().curDoingAppts = curDoingAppts;
    session().theszConnect = theszConnect;
    session().theTimeDisplay1 = theTimeDisplay1;
    session().theTimeDisplay2 = theTimeDisplay2;
    form = std::make_shared<frmOutWiz>();
    frm = form;
    listenToForm();
    form->load();
    form->SetupForm(CurDate);
    runModal(*form);
  });
  letGoOfForm();
}

void clsTarnelOutWizard::listenToForm() {
  const auto pass = [this](Signal<>& fromForm, Signal<>& toHost, const char* procedure) {
    formEvents_.push_back(fromForm.connect(
        [&toHost, procedure] { standardHandler(modules::clsTarnelOutWizard, procedure, [&toHost] { toHost(); }); }));
  };
  formEvents_.push_back(frm->CloseWiz.connect([this] { frm_CloseWiz(); }));
  formEvents_.push_back(
      frm->doUpdateOutlookSettings.connect([this](std::int32_t& newTask, std::int32_t& newAppt, std::string& profile) {
        standardHandler(modules::clsTarnelOutWizard, "frm_doUpdateOutlookSettings",
                        [&] { UpdateOutlookSettings(newTask, newAppt, profile); });
      }));
  pass(frm->OutlookPrefsChanged, OutlookPrefsChanged, "frm_OutlookPrefsChanged");
  pass(frm->ImportFromOutlook, ImportFromOutlook, "frm_ImportFromOutlook");
  pass(frm->TurnOnOutlookCurrentTasks, TurnOnOutlookCurrentTasks, "frm_TurnOnOutlookCurrentTasks");
  pass(frm->TurnOffOutlookCurrentTasks, TurnOffOutlookCurrentTasks, "frm_TurnOffOutlookCurrentTasks");
  pass(frm->MOPKilled, MOPKilled, "frm_MOPKilled");
}

void clsTarnelOutWizard::letGoOfForm() {
  formEvents_.clear();
  frm.reset();
}

void clsTarnelOutWizard::frm_CloseWiz() {
  standardHandler(modules::clsTarnelOutWizard, "frm_CloseWiz", [this] {
    if (frm) {
      const auto form = frm;
      form->hide();
      form->unload();
      letGoOfForm();
    }
    CloseTheWizard();
  });
}

}  // namespace tarnel
