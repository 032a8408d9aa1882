#pragma once

#include "SmartUI.h"

namespace tarnel {

// Keys of the items of smtSettings that are no modes.
namespace settingsKey {
inline constexpr const char* apptNote = "APPTNOTE";
inline constexpr const char* taskNote = "TASKNOTE";
inline constexpr const char* profile = "PRO1";
inline constexpr const char* outToProject = "OUT2PROJECT";  // there while the user is giving up the Outlook project
}  // namespace settingsKey

// The fixed items. Those of the profile stay hidden until showProfileItems.
void makeSettingsItems(SmartItems& items);
void showProfileItems(SmartItems& items);

}  // namespace tarnel
