#pragma once

#include <string>

#include "Form.h"
#include "Label.h"
#include "Panels.h"
#include "SSResizer.h"
#include "SSSplitter.h"
#include "SftTabs.h"
#include "SmartUI.h"

namespace tarnel::qt {

// A form with each kind of control, laid out as tightly as a wizard's.
class DemoForm : public Form {
 public:
  explicit DemoForm(int rows = 8) : Form("frmDemo", "Demo Wizard") {
    fillPicker();
    fillBars();
    fillSettings();
    for (int i = 0; i < rows; ++i) addRow(i);
    for (Control* control : std::initializer_list<Control*>{&backdrop, &heading, &tabs, &panel, &splitter, &leftPane,
                                                            &leftBand, &picker, &list, &commands, &rightPane,
                                                            &rightBand, &otherList, &settings, &actions, &unknown})
      addControl(*control);
    arrange();
    onTab_ = tabs.Switching.connect([this](std::size_t tab) {
      panel.setVisible(tab == 0);
      settings.setVisible(tab == 2);
    });
  }

  SmartItem& addRow(int number) {
    SmartItem& row = list.Items().Add(0, "R" + std::to_string(number), "Row number " + std::to_string(number),
                                      ItemType::checkRow, number % 2 ? "OUTLOOK" : "NONE");
    row.setToolTipText("Tip of row " + std::to_string(number));
    return row;
  }

  class Unknown : public Control {
   public:
    using Control::Control;
  };

  Label backdrop{"Label1", Label::Look::backdrop};
  Label heading{"lblHeader", Label::Look::heading,
                "Select and copy Tasks to and from Outlook's Task List. Depending on your Outlook Settings, Tasks will "
                "update in either program."};
  SftTabs tabs{"tabWiz", {"&Tasks", "&Appointments", "&Outlook Settings"}};
  PictureBox panel{"picWiz", 1};
  SSSplitter splitter{"splitTasks"};
  SSPanel leftPane{"paneAppt", 0};
  SSPanel rightPane{"paneAppt", 3};
  Label leftBand{"lblShow", 3, Label::Look::band, "Tarnel"};
  Label rightBand{"lblShow", 4, Label::Look::band, "Microsoft Outlook"};
  SmartUI picker{"smtPick", SmartUI::Look::form, "Tasks to Schedule:"};
  SmartUI list{"smtTaskList", 0, SmartUI::Look::checkList};
  SmartUI otherList{"smtTaskList", 1, SmartUI::Look::checkList};
  SmartUI commands{"smtTaskActions", 0, SmartUI::Look::bar};
  SmartUI settings{"smtSettings", SmartUI::Look::form, "Integration with Outlook Settings:"};
  SmartUI actions{"smtActions", SmartUI::Look::bar};
  Unknown unknown{"other"};
  std::vector<int> keys;
  bool swallowsEnter = true;

 protected:
  void Form_KeyDown(int& keyCode) override {
    keys.push_back(keyCode);
    if (keyCode == 27 || (swallowsEnter && keyCode == 13)) keyCode = 0, unload();
  }
  void Form_Resize() override {
    if (Height() < 6000) setHeight(6000);
    arrange();
  }

 private:
  void fillPicker() {
    picker.Items().Add(0, "", "Tasks:", ItemType::label);
    SmartItems& tasks = picker.Items().Add(0, "TASKPICK", "", ItemType::dropDown).SubItems();
    for (const char* caption : {"Current Tasks", "Tarnel", "Tasks with Appointments"})
      tasks.Add(0, caption, caption, ItemType::dropDownEntry);
    tasks.Add(0, "G", "Projects", ItemType::group);
    tasks.Add(0, "P1", "House & garden", ItemType::dropDownEntry);
    picker.Items().Item("TASKPICK").setValue(std::string("Current Tasks"));
    picker.Items().Add(0, "", "Sort Order:", ItemType::label);
    SmartItems& sorts = picker.Items().Add(0, "SORTPICK", "", ItemType::dropDown).SubItems();
    sorts.Add(0, "D00", "Possible Points High to Low", ItemType::dropDownEntry);
    sorts.Add(0, "D02", "Task Description A to Z", ItemType::dropDownEntry);
    sorts.Add(0, "D0A4", "Include", ItemType::group);
    sorts.Add(0, "D37", "Completed Tasks", ItemType::checkRow);
    sorts.Add(0, "D36", "Deadline Later to Now", ItemType::dropDownEntry);
    picker.Items().Item("SORTPICK").setValue(std::string("Possible Points High to Low"));
  }

  void fillBars() {
    for (const char* caption : {"All", "None"}) commands.Items().Add(0, caption, caption, ItemType::button);
    commands.Items().Add(0, "", "", ItemType::separator);
    for (const char* caption : {"Mark as Done", "Delete", "Copy/Update"})
      commands.Items().Add(0, caption, caption, ItemType::button);
    for (const char* caption : {"&Help", "&Done", "C&ancel", "&Update"})
      actions.Items().Add(0, caption, caption, ItemType::button);
    actions.Items().Item("C&ancel").setVisible(false);
    SmartItems& entries = actions.Items().Add(0, "MORE", "&More", ItemType::menu).SubItems();
    entries.Add(0, "PRINT", "Print", ItemType::menuEntry, "print");
  }

  void fillSettings() {
    SmartItems& items = settings.Items();
    items.Add(0, "", "Outlook Tasks:", ItemType::group);
    items.Add(0, "TASK4", "[4] Automatically update Outlook with Current Tarnel tasks.", ItemType::option);
    items.Add(0, "TASK3",
              "[3] I will use the Outlook Wizard when I want to copy Tasks to and from Outlook, which takes a caption "
              "that has to wrap.",
              ItemType::option);
    items.Add(0, "", "Notes", ItemType::group);
    items.Add(0, "NOTE", "Use this Setting:", ItemType::note)
        .setValue(
            std::string("This setting is best if you want to decide when to copy tasks between the two programs."));
    items.Add(0, "", "Outlook Profile", ItemType::group);
    SmartItem& profile = items.Add(0, "PRO1", "              Profile:", ItemType::dropDown);
    profile.SubItems().Add(0, "A", "Default Outlook Profile", ItemType::dropDownEntry);
    profile.setValue(std::string("Default Outlook Profile"));
    items.Item("TASK3").setChecked(true);
    settings.setVisible(false);
  }

  void arrange() {
    if (Width() == 0) Move(3705, 1500, 8400, 6000);
    backdrop.Move(0, 0, Width(), 645);
    heading.Move(60, 75, Width() - 120, 570);
    tabs.Move(0, 645, Width(), 360);
    const float bottom = ScaleHeight() - 480;
    panel.Move(0, 1005, ScaleWidth(), bottom - 1005);
    settings.Move(0, 1005, ScaleWidth(), bottom - 1005);
    actions.Move(0, bottom, ScaleWidth(), 480);
    splitter.setContainer(panel);
    splitter.Move(0, 0, panel.Width(), panel.Height());
    if (!leftPane.container()) joinPanes();
    const float high = panel.Height();
    leftBand.Move(0, 0, leftPane.Width(), 330);
    picker.Move(0, 330, leftPane.Width(), 1350);
    list.Move(0, 1680, leftPane.Width(), high - 2010);
    commands.Move(0, high - 330, leftPane.Width(), 330);
    rightBand.Move(0, 0, rightPane.Width(), 330);
    otherList.Move(0, 330, rightPane.Width(), high - 330);
  }

  void joinPanes() {
    splitter.Panes("Left").setContent(leftPane);
    splitter.Panes("Right").setContent(rightPane);
    for (Control* inside : std::initializer_list<Control*>{&leftBand, &picker, &list, &commands})
      inside->setContainer(leftPane);
    for (Control* inside : std::initializer_list<Control*>{&rightBand, &otherList}) inside->setContainer(rightPane);
    onPane_ = leftPane.placementChanged.connect([this] { arrange(); });
  }

  Connection onTab_;
  Connection onPane_;
};

}  // namespace tarnel::qt
