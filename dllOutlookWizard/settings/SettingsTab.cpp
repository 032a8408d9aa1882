#include "SettingsTab.h"

namespace tarnel {

SettingsTab::SettingsTab(FormState& form)
    : panel("picWiz", 2),
      smtSettings("smtSettings", SmartUI::Look::form, "Integration with Outlook Settings:"),
      form_(form) {
  panel.setVisible(false);
  smtSettings.setContainer(panel);
}

std::vector<Control*> SettingsTab::controls() { return {&panel, &smtSettings}; }

}  // namespace tarnel
