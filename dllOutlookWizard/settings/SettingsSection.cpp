#include "SettingsSection.h"

#include "Failure.h"
#include "clsSettings.h"

namespace tarnel {

std::shared_ptr<ado::Recordset> openSettingsSection(std::string_view section) {
  clsSettings settings;
  settings.SetSQL("SELECT * from Settings WHERE SetUser='1' and SetSettingSection = '" + std::string(section) +
                  "' ORDER BY setSettingDisplayOrd");
  std::shared_ptr<ado::Recordset> rows;
  settings.GetData(rows);
  if (!rows) failObjectNotSet();
  return rows;
}

}  // namespace tarnel
