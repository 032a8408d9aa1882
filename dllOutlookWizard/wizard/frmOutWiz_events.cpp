#include "HelpTopics.h"
#include "StandardHandler.h"
#include "StoredSettings.h"
#include "frmOutWiz.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

constexpr int enterKey = 13;
constexpr int escapeKey = 27;

}  // namespace

void frmOutWiz::tabWiz_Switching(std::size_t tab) {
  standardHandler(modules::frmOutWiz, "tabWiz_Switching", [&] {
    if (tab == 0) SetVisibleTab(1);
    if (tab == 1) SetVisibleTab(0);
    if (tab == 2) SetVisibleTab(2);
  });
}

void frmOutWiz::lockTabs() {
  standardHandler(modules::frmOutWiz, "lockTabs", [this] { setLocked(true); });
}

void frmOutWiz::UNlockTabs() {
  standardHandler(modules::frmOutWiz, "UNlockTabs", [this] { setLocked(false); });
}

void frmOutWiz::setLocked(bool locked) {
  tabWiz_.setTabEnabled(0, !locked);
  tabWiz_.setTabEnabled(1, !locked);
  smtActions_.Items().Item("UPDATE").setVisible(locked);
  smtActions_.Items().Item("CANCEL").setVisible(locked);
  smtActions_.Items().Item("DONE").setVisible(!locked);
}

void frmOutWiz::Form_KeyDown(int& keyCode) {
  standardHandler(modules::frmOutWiz, "Form_KeyDown", [&] {
    if (keyCode != enterKey && keyCode != escapeKey) return;
    CloseWiz();
    keyCode = 0;
  });
}

void frmOutWiz::smtActions_Click(const SmartItem& item) {
  standardHandler(modules::frmOutWiz, "smtActions_Click", [&] {
    if (item.Key() == "HELP") openHelpPop(helpNumber::outlookWizard);
    if (item.Key() == "DONE") saveAndClose();
    if (item.Key() == "CANCEL") cancel();
    if (item.Key() == "UPDATE") update();
  });
}

void frmOutWiz::cancel() {
  settings_.setTheSettings();
  UNlockTabs();
  // A profile that was chosen stays chosen, and the next command works on its mailbox: the lists show it, too.
  if (session().theOutlookProfile != filledProfile_) fillFromOutlook();
}

void frmOutWiz::update() {
  settings_.getUpdatedSettings();
  doUpdateOutlookSettings(settings_.newTaskSetting, settings_.newApptSetting, session().theOutlookProfile);
  settings_.FromToOutTasks();
  settings_.FromToOutAppts();
  saveAndClose();
}

void frmOutWiz::saveAndClose() {
  state_.formClosing = true;
  SaveSettings(state_);
  CloseWiz();
}

void frmOutWiz::Form_QueryUnload() {
  standardHandler(modules::frmOutWiz, "Form_QueryUnload", [this] {
    appointments_.schedules.closeRows();
    tasks_.lists.closeRows();
    if (state_.formClosing) return;
    // Settings that were never read can't be written back.
    if (settingsRead_) SaveSettings(state_);
    CloseWiz();
  });
}

}  // namespace tarnel
