#include "Modes.h"

#include "Conversions.h"
#include "Failure.h"

namespace tarnel::host {
namespace {

std::int32_t modeOf(const Variant& value) {
  try {
    return toLong(value);
  } catch (const Failure&) {
    return Modes::none;  // the wizard tells of it
  }
}

}  // namespace

Modes modesIn(ado::Session& database) {
  const ado::Result settings = database.query(
      "SELECT SetSettingName, SetSettingValue FROM Settings WHERE SetUser='1' AND "
      "SetSettingSection='OutLookIntegration'");
  Modes modes;
  for (const ado::Row& row : settings.rows) {
    if (textOrEmpty(row[0]) == "OutTaskSetting") modes.tasks = modeOf(row[1]);
    if (textOrEmpty(row[0]) == "OutApptSetting") modes.appointments = modeOf(row[1]);
  }
  return modes;
}

}  // namespace tarnel::host
