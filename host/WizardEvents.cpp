#include "WizardEvents.h"

#include <cstring>

#include "Failure.h"
#include "Modes.h"
#include "SettingsNames.h"
#include "SqlText.h"

namespace tarnel::host {
namespace {

constexpr std::uint32_t settingsCount = 3;

std::string profileOf(const TarnelVariant* arguments) {
  const TarnelText& text = arguments[2].value.variantReference->value.text;
  return text.length > 0 ? std::string(text.bytes, text.length) : std::string();
}

}  // namespace

TarnelResult WizardEvents::QueryInterface(const TarnelGuid* id, void** object) {
  const bool known = std::memcmp(id, &DIID___clsTarnelOutWizard, sizeof *id) == 0 ||
                     std::memcmp(id, &IID_TarnelObject, sizeof *id) == 0;
  *object = known ? this : nullptr;
  return known ? TARNEL_OK : TARNEL_NO_INTERFACE;
}

TarnelResult WizardEvents::Invoke(std::int32_t event, TarnelVariant* arguments, std::uint32_t count) {
  const std::string name = tarnelEventName(event);
  if (name.empty()) return TARNEL_OK;  // a later component's
  std::int32_t number = failure::automation;
  std::string why;
  try {
    EventArguments told;
    if (event == TARNEL_UPDATE_OUTLOOK_SETTINGS && count == settingsCount)
      told = {{"newTask", *arguments[0].value.int32Reference},
              {"newAppt", *arguments[1].value.int32Reference},
              {"newProfile", profileOf(arguments)}};
    tell_(name, told);
    return act(event, arguments);
  } catch (const Failure& failure) {
    number = failure.number();
    why = failure.description();
  } catch (const std::exception& error) {
    why = error.what();
  }
  const TarnelText text = tarnelText(why.c_str());
  control_.ExplainFailure(number, &text);
  return TARNEL_FAILED;
}

TarnelResult WizardEvents::act(std::int32_t event, const TarnelVariant* arguments) {
  if (event == TARNEL_IMPORT_FROM_OUTLOOK) return control_.ImportOutlookTasks();
  if (event == TARNEL_TURN_ON_OUTLOOK_CURRENT_TASKS) return control_.CopyCurrentTasks();
  if (event == TARNEL_OUTLOOK_PREFS_CHANGED) return carryOutModes();
  if (event == TARNEL_UPDATE_OUTLOOK_SETTINGS) {
    keepProfile(profileOf(arguments));
    noteModes(arguments);
  }
  return TARNEL_OK;
}

// The settings hold the modes that were in force so far.
void WizardEvents::noteModes(const TarnelVariant* arguments) {
  const Modes before = modesIn(*database_.open(connection_));
  const std::int32_t tasks = *arguments[0].value.int32Reference, appointments = *arguments[1].value.int32Reference;
  // From no integration at all the wizard itself says when the Current list goes over.
  copiesTasks_ = tasks == Modes::automatic && before.tasks != Modes::automatic && before.tasks != Modes::none;
  copiesAppointments_ = appointments == Modes::automatic && before.appointments != Modes::automatic;
}

TarnelResult WizardEvents::carryOutModes() {
  if (std::exchange(copiesTasks_, false))
    if (const TarnelResult result = control_.CopyCurrentTasks(); result < 0) return result;
  return std::exchange(copiesAppointments_, false) ? control_.CopyTaskAppointments() : TARNEL_OK;
}

void WizardEvents::keepProfile(const std::string& profile) const {
  const std::string rows = std::string(" WHERE SetUser='1' AND SetSettingSection='") + settingsSection::profile + "'";
  const bool isChosen = !profile.empty() && profile != "NONE";
  const auto database = database_.open(connection_);
  const std::size_t count = database->query("SELECT SetSettingValue FROM Settings" + rows).rows.size();
  if (count == 1) {
    database->execute("UPDATE Settings SET SetSettingValue=" + sqlText(profile) + rows);
  } else if (count == 0 && isChosen) {
    database->execute(
        "INSERT INTO Settings (SetUser, SetSettingSection, SetSettingName, SetSettingValue, SetDefault, "
        "setSettingDisplayOrd, setSettingComment) VALUES ('1', '" +
        std::string(settingsSection::profile) + "', 'OutlookProfile', " + sqlText(profile) +
        ", '', 0, 'Outlook profile to log on with')");
  } else if (isChosen) {
    // Which of them was meant, nobody knows.
    const std::string text = "The profile can't be kept: the settings hold " + std::to_string(count) +
                             " rows for it (section OutlookProfileString) where there should be one. Remove the others "
                             "and choose the profile again.";
    const TarnelText told = tarnelText(text.c_str());
    control_.TellUser(&told);
  }
}

}  // namespace tarnel::host
