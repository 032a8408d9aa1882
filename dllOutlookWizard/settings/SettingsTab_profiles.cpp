#include "CRegistry.h"
#include "Captions.h"
#include "Failure.h"
#include "OutlookProfilesKey.h"
#include "SettingsItems.h"
#include "SettingsTab.h"
#include "StandardHandler.h"
#include "m_OutlookWizard.h"

namespace tarnel {

bool SettingsTab::SetupForProfiles() {
  return standardHandler<bool>(modules::frmOutWiz, "SetupForProfiles", [this](bool& done) {
    CRegistry registry;
    registry.Init(rootKey::currentUser);
    SmartItem& profile = smtSettings.Items().Item(settingsKey::profile);
    profile.SubItems().Clear();
    if (registry.KeyExists(outlookProfilesKey)) {
      std::vector<std::string> names;
      registry.GetAllSubKeys(outlookProfilesKey, names);
      showProfiles(names);
    } else {
      profile.SubItems().Add(0, "NONE", "Outlook Default", SmartItemType::dropDownEntry);
      // Where the stored profile has gone, the default takes its place, as if the user had chosen it.
      if (profileIsChosen())
        profile.setValue("Outlook Default");
      else
        showProfile("Outlook Default");
    }
    showProfileItems(smtSettings.Items());
    done = true;
  });
}

void SettingsTab::showProfiles(const std::vector<std::string>& names) {
  SmartItem& profile = smtSettings.Items().Item(settingsKey::profile);
  for (const std::string& name : names) {
    const std::string shown = ZapAmps(name);
    profile.SubItems().Add(0, shown, shown, SmartItemType::dropDownEntry);
  }
  if (!profileIsChosen() && names.empty()) failSubscript();
  showProfile(profileIsChosen() ? session().theOutlookProfile : names.back());
}

// Showing a profile is not choosing it: the tabs stay unlocked.
void SettingsTab::showProfile(const std::string& caption) {
  form_.formLoading = true;
  smtSettings.Items().Item(settingsKey::profile).setValue(caption);
  form_.formLoading = false;
}

}  // namespace tarnel
