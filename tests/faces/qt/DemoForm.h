#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <memory>
#include <stdexcept>
#include <string>

#include "FakeDesktop.h"
#include "Form.h"
#include "FormWindow.h"
#include "SftTabs.h"
#include "SmartUI.h"

namespace tarnel::qt {

// A form with each look of items: drop-downs and a check list above their bar, settings beside them.
class DemoForm : public Form {
 public:
  explicit DemoForm(int rows = 8) : Form("frmDemo", "Demo Wizard") {
    fillPicker();
    fillBars();
    fillSettings();
    for (int i = 0; i < rows; ++i) addRow(i);
    for (Control* control : std::initializer_list<Control*>{&tabs, &picker, &list, &commands, &settings, &actions})
      addControl(*control);
    Move(3705, 1500, 8400, 6000);
    tabs.Move(0, 0, 8300, 360);
    picker.Move(0, 360, 4100, 1350);
    list.Move(0, 1710, 4100, 2970);
    commands.Move(0, 4680, 4100, 330);
    settings.Move(4100, 360, 4200, 4650);
    actions.Move(0, 5060, 8300, 480);
  }

  SmartItem& addRow(int number) {
    return list.Items().Add(0, "R" + std::to_string(number), "Row number " + std::to_string(number),
                            SmartItemType::checkRow, number % 2 ? "OUTLOOK" : "NONE");
  }

  SftTabs tabs{"tabWiz", {"&Tasks", "&Appointments", "&Outlook Settings"}};
  SmartUI picker{"smtPick", SmartUI::Look::form};
  SmartUI list{"smtTaskList", 0, SmartUI::Look::checkList};
  SmartUI commands{"smtTaskActions", 0, SmartUI::Look::bar};
  SmartUI settings{"smtSettings", SmartUI::Look::form};
  SmartUI actions{"smtActions", SmartUI::Look::bar};

 private:
  void fillPicker() {
    SmartItem& tasks = picker.Items().Add(0, "TASKPICK", "Tasks:", SmartItemType::dropDown);
    tasks.SubItems().Add(0, "C", "Current Tasks", SmartItemType::dropDownEntry);
    SmartItem& sort = picker.Items().Add(0, "SORTPICK", "Sort Order:", SmartItemType::dropDown);
    sort.SubItems().Add(0, "D00", "Possible Points High to Low", SmartItemType::dropDownEntry);
    sort.SubItems().Add(0, "D02", "Task Description A to Z", SmartItemType::dropDownEntry);
    sort.SubItems().Add(0, "D0A4", "Include", SmartItemType::group);
    sort.SubItems().Add(0, "D37", "Completed Tasks", SmartItemType::checkRow);
    sort.SubItems().Add(0, "D36", "Deadline Later to Now", SmartItemType::dropDownEntry);
    sort.setValue(std::string("Possible Points High to Low"));
  }

  void fillBars() {
    for (const char* caption : {"All", "None", "Mark as Done", "Delete", "Copy/Update"})
      commands.Items().Add(0, caption, caption, SmartItemType::button);
    actions.Items().Add(0, "&Help", "&Help", SmartItemType::button);
    SmartItems& entries = actions.Items().Add(0, "MORE", "&More", SmartItemType::menu).SubItems();
    entries.Add(0, "PRINT", "Print", SmartItemType::menuEntry, "print");
  }

  void fillSettings() {
    SmartItems& items = settings.Items();
    items.Add(0, "TASK4", "[4] Automatically", SmartItemType::option);
    items.Add(0, "TASK3", "[3] When I want to", SmartItemType::option).setChecked(true);
    items.Add(0, "NOTE", "Use this Setting:", SmartItemType::note);
    items.Add(0, "PRO1", "Profile:", SmartItemType::dropDown);
  }
};

// The demo form in its window, active and painted.
struct ShownForm {
  explicit ShownForm(int rows = 8) : form(rows) {
    form.load();
    test::FakeDesktop desktop;
    form.showModal(desktop);
    window = std::make_unique<FormWindow>(form, ViewFactory(), nullptr);
    window->present();
    if (!QTest::qWaitForWindowActive(window.get())) throw std::runtime_error("The window never became active");
    settle();
  }

  static void settle() { QApplication::processEvents(); }

  template <class View = QWidget>
  View& view(const Control& control) {
    return dynamic_cast<View&>(*window->view(control));
  }

  // The button or option with this caption, hidden or not.
  QAbstractButton* button(const Control& control, const QString& caption) {
    for (auto* button : view(control).findChildren<QAbstractButton*>())
      if (button->text() == caption) return button;
    return nullptr;
  }

  DemoForm form;
  std::unique_ptr<FormWindow> window;
};

}  // namespace tarnel::qt
