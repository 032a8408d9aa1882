#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "AppointmentsTab.h"
#include "Form.h"
#include "FormState.h"
#include "Label.h"
#include "SSResizer.h"
#include "SettingsTab.h"
#include "SftTabs.h"
#include "SmartUI.h"
#include "TasksTab.h"

namespace tarnel {

class frmPopHelp;

// The wizard's window: a heading, three tabs, each a part of its own, and a bar of buttons. The form keeps what they
// have in common: how it starts, the layout, the buttons and keys, every way to close it.
class frmOutWiz : public Form {
 public:
  frmOutWiz();

  // Fills everything, with the form loaded and hidden. Ends at the first failure that takes the form away.
  void SetupForm(Date CurDate);

  // Panels: 0 Appointments, 1 Tasks, 2 Outlook Settings.
  bool SetVisibleTab(std::int16_t panel);
  // While locked only the settings tab can be used, and left only by "UPDATE" or "CANCEL".
  void lockTabs();
  void UNlockTabs();
  // Shows the help popup above the wizard and returns when it has gone. False on failure.
  bool openHelpPop(std::int32_t HelpNum);

  // Place, size and splitter shares as they would be stored now.
  const FormState& state() const { return state_; }

  Signal<> CloseWiz;
  Signal<std::int32_t&, std::int32_t&, std::string&> doUpdateOutlookSettings;
  Signal<> OutlookPrefsChanged;
  Signal<> ImportFromOutlook;
  Signal<> TurnOnOutlookCurrentTasks;
  Signal<> TurnOffOutlookCurrentTasks;
  Signal<> MOPKilled;

 protected:
  void Form_Load() override;
  void Form_Resize() override;
  void Form_KeyDown(int& keyCode) override;
  void Form_QueryUnload() override;

 private:
  void makeControls();
  void anchorControls();
  void listenToControls();

  bool loadMySettings();
  void placeBySettings();
  void openFirstTab();
  void showProfile();
  // Fills what shows Outlook from the mailbox of the profile in force.
  void fillFromOutlook();
  void placePanel(PictureBox& panel, float besideWidth, float besideHeight);
  void rememberPlace();
  void setLocked(bool locked);
  PictureBox& picWiz(std::int16_t panel);

  void tabWiz_Switching(std::size_t tab);
  void smtActions_Click(const SmartItem& item);
  void helpPop_closePop();
  void cancel();
  void update();
  void saveAndClose();
  void splitTasks_SplitterEndDrag();
  void splitAppts_SplitterEndDrag();

  FormState state_;
  Label Label1_;
  Label lblHeader_;
  SftTabs tabWiz_;
  TasksTab tasks_;
  AppointmentsTab appointments_;
  SettingsTab settings_;
  SmartUI smtActions_;
  Image imgOutlook_;
  Image imgTarnel_;
  Image imgCheck_;
  SSResizer formResizer_;
  SSResizer appointmentsResizer_;
  SSResizer tasksResizer_;
  SSResizer settingsResizer_;
  std::int16_t visibleTab_ = 0;
  bool settingsRead_ = false;
  std::string filledProfile_;            // whose mailbox the Outlook list and the schedules show
  std::shared_ptr<frmPopHelp> helpPop_;  // while it is open
  std::vector<Connection> connections_;
};

}  // namespace tarnel
