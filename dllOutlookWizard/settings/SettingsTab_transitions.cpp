#include <algorithm>
#include <iterator>
#include <vector>

#include "Captions.h"
#include "Conversions.h"
#include "Failure.h"
#include "IntegrationModes.h"
#include "Platform.h"
#include "SettingsItems.h"
#include "SettingsTab.h"
#include "StandardHandler.h"
#include "m_OutlookWizard.h"
#include "manageOutlookRef.h"

namespace tarnel {

// A change of the tasks mode. Pairs of modes that have no row change nothing.
struct SettingsTab::Transition {
  using Event = Signal<> SettingsTab::*;

  enum class Work {
    none,
    turnOn,            // connects and has the Outlook project made; on failure the integration stays off
    endProject,        // has the Outlook project's tasks moved to the one that the user chose
    endOfferedProject  // the same where the user was asked; otherwise the events after it are left out too
  };

  std::int32_t from;
  std::int32_t to;
  std::vector<Event> before;
  Work work;
  std::vector<Event> after;

  static const Transition* find(std::int32_t from, std::int32_t to);
};

const SettingsTab::Transition* SettingsTab::Transition::find(std::int32_t from, std::int32_t to) {
  constexpr Event prefsChanged = &SettingsTab::OutlookPrefsChanged;
  constexpr Event import = &SettingsTab::ImportFromOutlook;
  constexpr Event currentOn = &SettingsTab::TurnOnOutlookCurrentTasks;
  constexpr Event currentOff = &SettingsTab::TurnOffOutlookCurrentTasks;
  constexpr Event projectEnded = &SettingsTab::MOPKilled;

  static const Transition table[] = {
      {0, 1, {}, Work::turnOn, {import, prefsChanged}},
      {0, 2, {}, Work::turnOn, {import, prefsChanged}},
      {0, 3, {}, Work::turnOn, {import, prefsChanged, currentOn}},
      {1, 0, {}, Work::endProject, {prefsChanged, projectEnded}},
      // The host has been told the new mode, so that it must come into force here too.
      {1, 2, {}, Work::none, {prefsChanged}},
      {1, 3, {}, Work::none, {import, prefsChanged}},
      {2, 0, {}, Work::endProject, {prefsChanged, projectEnded}},
      {2, 1, {}, Work::none, {prefsChanged}},
      {2, 3, {}, Work::none, {import, prefsChanged}},
      {3, 0, {currentOff}, Work::endOfferedProject, {prefsChanged, projectEnded}},
      {3, 1, {}, Work::none, {currentOff}},
      {3, 2, {}, Work::none, {currentOff}},
  };
  const auto* const found = std::find_if(std::begin(table), std::end(table),
                                         [&](const Transition& row) { return row.from == from && row.to == to; });
  return found == std::end(table) ? nullptr : found;
}

bool SettingsTab::FromToOutTasks() {
  const std::int32_t mode = checkedMode(taskModes, smtSettings.Items()).value_or(0);
  if (const Transition* transition = Transition::find(session().OutTaskSetting, mode)) carryOut(*transition);
  newTaskSetting = mode;
  return true;
}

void SettingsTab::carryOut(const Transition& transition) {
  using Work = Transition::Work;
  const auto raise = [this](const std::vector<Transition::Event>& events) {
    for (const Transition::Event event : events) (this->*event)();
  };
  const bool asked = smtSettings.Items().Exists(settingsKey::outToProject);
  const bool endsProject = transition.work == Work::endProject || (transition.work == Work::endOfferedProject && asked);
  // Read before the first event: a choice that can't be carried out must leave the host untouched.
  const Project target = endsProject ? chosenProject() : Project{};

  raise(transition.before);
  if (transition.work == Work::turnOn && !turnOutlookOn()) {
    session().OutTaskSetting = 0;
    OutlookPrefsChanged();
    return;
  }
  if (endsProject) platform().utilities.run(TarnelUtilities::Code::endOutlookProject, target.key, target.name);
  session().OutTaskSetting = transition.to;
  if (transition.work != Work::endOfferedProject || asked) raise(transition.after);
}

bool SettingsTab::turnOutlookOn() {
  if (!manageOutlookRef()) {
    tellUser(
        "Tarnel was unable to connect to your copy or Microsoft Outlook 2000 or later.\r\n"
        "If you are using Microsoft Outlook 2000 or later, please send a Technical Support request from the Help menu "
        "so we can assist you.\r\n"
        "Integrate Outlook tasks is off.");
    return false;
  }
  releaseOutlook();
  platform().utilities.run(TarnelUtilities::Code::makeOutlookProject, productTitle, "Outlook Tasks");
  return true;
}

SettingsTab::Project SettingsTab::chosenProject() {
  SmartItem& choice = smtSettings.Items().Item(settingsKey::outToProject);
  const SmartItem* entry = GetItemSelected(choice);
  if (!entry) failObjectNotSet();
  return {entry->Key(), toText(choice.Value())};
}

bool SettingsTab::FromToOutAppts() {
  return standardHandler<bool>(modules::frmOutWiz, "FromToOutAppts", [this](bool& done) {
    newApptSetting = checkedMode(apptModes, smtSettings.Items()).value_or(0);
    session().OutApptSetting = newApptSetting;
    OutlookPrefsChanged();
    done = true;
  });
}

}  // namespace tarnel
