#pragma once

#include <array>
#include <functional>

#include "Label.h"
#include "LaidOutPane.h"
#include "Panels.h"
#include "SSSplitter.h"
#include "SmartUI.h"
#include "TaskLists.h"

namespace tarnel {

// The Tasks tab: the picker and the Tarnel list on the left, the Outlook list on the right, an action bar under each.
class TasksTab {
 public:
  explicit TasksTab(FormState& form);

  PictureBox panel;  // picWiz(1)
  SSSplitter splitTasks;
  TaskLists lists;

  // The tab's controls in tab order, containers before what is in them.
  std::vector<Control*> controls();
  // Entries and start position of the picker.
  void setupPicker();

  bool MarkAllTarnelTasks();
  bool UNMarkAllTarnelTasks();
  bool MarkAllOutlookTasks();
  bool UNMarkAllOutlookTasks();

 private:
  void smtTaskActions_Click(int index, const SmartItem& item);
  bool markAll(std::string_view procedure, SmartUI& list, bool checked);
  void layTarnelPane(float width, float height);
  void layOutlookPane(float width, float height);

  LaidOutPane tarnelPane_;   // paneAppt(0)
  LaidOutPane outlookPane_;  // paneAppt(3)
  Label tarnelCaption_;      // lblShow(3)
  Label outlookCaption_;
  SmartUI tarnelActions_;  // smtTaskActions(0)
  SmartUI outlookActions_;
  std::vector<Connection> connections_;
};

}  // namespace tarnel
