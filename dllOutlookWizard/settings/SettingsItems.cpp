#include "SettingsItems.h"

#include "IntegrationModes.h"

namespace tarnel {
namespace {

constexpr const char* noteCaption = "Use this Setting:";
constexpr std::array<const char*, 4> profileItems{"PRO", settingsKey::profile, "PRO2", "PRONOTE"};

// Highest number first, then the note of the one in use.
void addModes(SmartItems& items, const char* heading, const IntegrationModes& modes, const char* noteKey) {
  items.Add(0, "", heading, SmartItemType::group);
  for (auto mode = modes.rbegin(); mode != modes.rend(); ++mode)
    items.Add(0, mode->key, mode->caption, SmartItemType::option);
  items.Add(0, "", "Notes", SmartItemType::group);
  items.Add(0, noteKey, noteCaption, SmartItemType::note);
}

}  // namespace

void makeSettingsItems(SmartItems& items) {
  addModes(items, "Outlook Appointments:", apptModes, settingsKey::apptNote);
  addModes(items, "Outlook Tasks:", taskModes, settingsKey::taskNote);
  items.Add(0, profileItems[0], "Outlook Profile", SmartItemType::group);
  items.Add(0, profileItems[1], "              Profile:", SmartItemType::dropDown);
  items.Add(0, profileItems[2], "Notes", SmartItemType::group);
  items.Add(0, profileItems[3], noteCaption, SmartItemType::note)
      .setValue("Select the Outlook Profile you want to synchronize with.");
  for (const char* key : profileItems) items.Item(key).setVisible(false);
}

void showProfileItems(SmartItems& items) {
  for (const char* key : profileItems) items.Item(key).setVisible(true);
}

}  // namespace tarnel
