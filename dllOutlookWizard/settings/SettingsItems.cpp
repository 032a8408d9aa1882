#include "SettingsItems.h"

#include "IntegrationModes.h"

namespace tarnel {
namespace {

constexpr const char* noteCaption = "Use this Setting:";
constexpr std::array<const char*, 4> profileItems{"PRO", settingsKey::profile, "PRO2", "PRONOTE"};

// Highest number first, then the note of the one in use.
void addModes(SmartItems& items, const char* heading, const IntegrationModes& modes, const char* noteKey) {
  items.Add(0, "", heading, ItemType::group);
  for (auto mode = modes.rbegin(); mode != modes.rend(); ++mode)
    items.Add(0, mode->key, mode->caption, ItemType::option);
  items.Add(0, "", "Notes", ItemType::group);
  items.Add(0, noteKey, noteCaption, ItemType::note);
}

}  // namespace

void makeSettingsItems(SmartItems& items) {
  addModes(items, "Outlook Appointments:", apptModes, settingsKey::apptNote);
  addModes(items, "Outlook Tasks:", taskModes, settingsKey::taskNote);
  items.Add(0, profileItems[0], "Outlook Profile", ItemType::group);
  items.Add(0, profileItems[1], "              Profile:", ItemType::dropDown);
  items.Add(0, profileItems[2], "Notes", ItemType::group);
  items.Add(0, profileItems[3], noteCaption, ItemType::note)
      .setValue("Select the Outlook Profile you want to synchronize with.");
  for (const char* key : profileItems) items.Item(key).setVisible(false);
}

void showProfileItems(SmartItems& items) {
  for (const char* key : profileItems) items.Item(key).setVisible(true);
}

}  // namespace tarnel
