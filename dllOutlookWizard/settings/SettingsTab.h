#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "FormState.h"
#include "Panels.h"
#include "SmartUI.h"

namespace tarnel {

// The Outlook Settings tab: how tasks and appointments are integrated, and which Outlook profile is used. A mode that
// the user clicks is only shown until FromToOutTasks and FromToOutAppts carry it out.
class SettingsTab {
 public:
  explicit SettingsTab(FormState& form);

  PictureBox panel;  // picWiz(2)
  SmartUI smtSettings;

  // Read off the items: the chosen modes, 0 to 3.
  std::int32_t newTaskSetting = 0;
  std::int32_t newApptSetting = 0;

  // The form's own events, which it passes on; its lockTabs, raised whenever a setting was touched; and the word that
  // theOutlookProfile is another one.
  Signal<> lockTabs;
  Signal<> profileChosen;
  Signal<> OutlookPrefsChanged;
  Signal<> ImportFromOutlook;
  Signal<> TurnOnOutlookCurrentTasks;
  Signal<> TurnOffOutlookCurrentTasks;
  Signal<> MOPKilled;

  // The tab's controls in tab order, containers before what is in them.
  std::vector<Control*> controls();

  // Checks the items of the modes in force, shows their notes and takes back what a clicked mode had added; doesn't
  // lock. A mode in force that is none of the four changes nothing.
  bool setTheSettings();
  // A kind of mode with no item checked keeps its value.
  bool getUpdatedSettings();
  // Fills the drop-down with the profiles there are and shows it.
  bool SetupForProfiles();

  // Carries out the change from the tasks mode in force to the checked one, by the table of transitions. Failures go
  // to the caller: "UPDATE" must not save what was carried out by half.
  bool FromToOutTasks();
  bool FromToOutAppts();

 private:
  struct Transition;
  struct Project {
    std::string key;
    std::string name;
  };

  void smtSettings_Click(const SmartItem& item);
  void smtSettings_Change(SmartItem& item, const std::string& property);
  void SetNote(const std::string& key);
  void showNote(std::string_view key);
  void offerProjects();
  void withdrawProjects();
  Project chosenProject();
  void showProfiles(const std::vector<std::string>& names);
  void showProfile(const std::string& caption);
  void carryOut(const Transition& transition);
  bool turnOutlookOn();

  FormState& form_;
  std::vector<Connection> connections_;
};

}  // namespace tarnel
