#pragma once

#include <vector>

#include "FormState.h"
#include "Panels.h"
#include "SmartUI.h"

namespace tarnel {

// The Outlook Settings tab.
class SettingsTab {
 public:
  explicit SettingsTab(FormState& form);

  PictureBox panel;  // picWiz(2)
  SmartUI smtSettings;

  // The tab's controls in tab order, containers before what is in them.
  std::vector<Control*> controls();

 private:
  FormState& form_;
};

}  // namespace tarnel
