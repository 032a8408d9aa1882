#include "SettingsTab.h"

#include "Captions.h"
#include "Failure.h"
#include "IntegrationModes.h"
#include "SettingsItems.h"
#include "StandardHandler.h"
#include "m_OutlookWizard.h"

namespace tarnel {

SettingsTab::SettingsTab(FormState& form)
    : panel("picWiz", 2),
      smtSettings("smtSettings", SmartUI::Look::form, "Integration with Outlook Settings:"),
      form_(form) {
  panel.setVisible(false);
  smtSettings.setContainer(panel);
  makeSettingsItems(smtSettings.Items());
  connections_.push_back(smtSettings.Click.connect([this](SmartItem& item) { smtSettings_Click(item); }));
  connections_.push_back(smtSettings.Change.connect(
      [this](SmartItem& item, const std::string& property) { smtSettings_Change(item, property); }));
}

std::vector<Control*> SettingsTab::controls() { return {&panel, &smtSettings}; }

bool SettingsTab::setTheSettings() {
  return standardHandler<bool>(modules::frmOutWiz, "setTheSettings", [this](bool& done) {
    const auto check = [this](const IntegrationModes& modes, std::int32_t mode) {
      if (mode < 0 || static_cast<std::size_t>(mode) >= modes.size()) return;
      const char* key = modes[static_cast<std::size_t>(mode)].key;
      smtSettings.Items().Item(key).setChecked(true);
      showNote(key);
    };
    check(taskModes, session().OutTaskSetting);
    check(apptModes, session().OutApptSetting);
    // Nobody is giving up the Outlook project while the mode in force is the one shown.
    withdrawProjects();
    done = true;
  });
}

bool SettingsTab::getUpdatedSettings() {
  return standardHandler<bool>(modules::frmOutWiz, "getUpdatedSettings", [this](bool& done) {
    newTaskSetting = checkedMode(taskModes, smtSettings.Items()).value_or(newTaskSetting);
    newApptSetting = checkedMode(apptModes, smtSettings.Items()).value_or(newApptSetting);
    done = true;
  });
}

void SettingsTab::SetNote(const std::string& key) {
  standardHandler(modules::frmOutWiz, "SetNote", [&] {
    showNote(key);
    lockTabs();
  });
}

void SettingsTab::showNote(std::string_view key) {
  const auto show = [&](const IntegrationModes& modes, const char* noteKey) {
    if (const auto mode = modeOfKey(modes, key))
      smtSettings.Items().Item(noteKey).setValue(modes[static_cast<std::size_t>(*mode)].note);
  };
  show(taskModes, settingsKey::taskNote);
  show(apptModes, settingsKey::apptNote);
}

void SettingsTab::smtSettings_Click(const SmartItem& item) {
  standardHandler(modules::frmOutWiz, "smtSettings_Click", [&] {
    const std::string& key = item.Key();
    const auto taskMode = modeOfKey(taskModes, key);
    if (!taskMode && !modeOfKey(apptModes, key)) return;
    if (taskMode) {
      if (*taskMode == 0 && item.Checked() && session().OutTaskSetting != 0)
        offerProjects();
      else
        withdrawProjects();
    }
    SetNote(key);
    SetupForProfiles();
  });
}

void SettingsTab::offerProjects() {
  const SessionState& state = session();
  SmartItems& items = smtSettings.Items();
  if (!items.Exists(settingsKey::outToProject))
    items.Add(items.Count(), settingsKey::outToProject,
              "Move Microsoft\u00AE Outlook\u00AE Project tasks to:", SmartItemType::dropDown);
  SmartItem& choice = items.Item(settingsKey::outToProject);
  choice.SubItems().Clear();
  for (std::size_t i = 0; i < state.theProjectKeys.size(); ++i)
    if (state.theProjectKeys[i] != state.theOutlookProjectKey)
      choice.SubItems().Add(0, state.theProjectKeys[i], state.theProjectNames[i], SmartItemType::dropDownEntry);
  // Without any project there is nothing to offer; looking at the mode must not end the wizard.
  if (!state.theProjectNames.empty()) choice.setValue(state.theProjectNames.front());
}

void SettingsTab::withdrawProjects() {
  SmartItems& items = smtSettings.Items();
  if (items.Exists(settingsKey::outToProject)) items.Remove(settingsKey::outToProject);
}

void SettingsTab::smtSettings_Change(SmartItem& item, const std::string& property) {
  if (form_.formLoading) return;
  standardHandler(modules::frmOutWiz, "smtSettings_Change", [&] {
    if (item.Key() != settingsKey::profile || property != "Value") return;
    const SmartItem* chosen = GetItemSelected(item);
    if (!chosen) failObjectNotSet();
    session().theOutlookProfile = chosen->Key();
    profileChosen();
    lockTabs();
  });
}

}  // namespace tarnel
