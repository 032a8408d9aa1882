#include "SaveSettings.h"

#include "Conversions.h"
#include "Records.h"
#include "SettingsSection.h"
#include "StandardHandler.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

void saveLayout(const FormState& form) {
  const auto rows = openSettingsSection("OutWizard");
  for (std::size_t slot = 0; !rows->atEOF(); rows->MoveNext(), ++slot) {
    if (slot == meSize::count) failSubscript();
    rows->Fields("SetSettingValue").setValue(form.meSizes[slot]);
    rows->Update();
  }
  rows->UpdateBatch(ado::Affect::all);
  closeIfOpen(*rows);
}

void saveModes() {
  const auto rows = openSettingsSection("OutLookIntegration");
  const auto saveWhereNamed = [&](const char* name, std::int32_t mode) {
    if (textOrEmpty(rows->Fields("SetSettingName").Value()) != name) return;
    rows->Fields("SetSettingValue").setValue(mode);
    rows->Update();
  };
  for (; !rows->atEOF(); rows->MoveNext()) {
    saveWhereNamed("OutTaskSetting", session().OutTaskSetting);
    saveWhereNamed("OutApptSetting", session().OutApptSetting);
  }
  rows->UpdateBatch(ado::Affect::allChapters);
  closeIfOpen(*rows);
}

}  // namespace

bool SaveSettings(const FormState& form) {
  return standardHandler<bool>(modules::frmOutWiz, "SaveSettings", [&](bool& saved) {
    saveLayout(form);
    saveModes();
    saved = true;
  });
}

}  // namespace tarnel
