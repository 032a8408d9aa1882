#include "WizardEvents.h"

#include <cstring>

#include "Failure.h"
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

TarnelResult WizardEvents::act(std::int32_t event, const TarnelVariant* arguments) const {
  if (event == TARNEL_IMPORT_FROM_OUTLOOK) return control_.ImportOutlookTasks();
  if (event == TARNEL_TURN_ON_OUTLOOK_CURRENT_TASKS) return control_.CopyCurrentTasks();
  if (event == TARNEL_UPDATE_OUTLOOK_SETTINGS) keepProfile(profileOf(arguments));
  return TARNEL_OK;
}

void WizardEvents::keepProfile(const std::string& profile) const {
  database_.open(connection_)
      ->execute("UPDATE Settings SET SetSettingValue=" + sqlText(profile) +
                " WHERE SetUser='1' AND SetSettingSection='OutlookProfileString'");
}

}  // namespace tarnel::host
