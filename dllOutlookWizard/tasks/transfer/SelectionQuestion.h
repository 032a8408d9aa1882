#pragma once

#include <string>

#include "TaskLists.h"

namespace tarnel {

// The checked rows of the Outlook list by their kinds.
struct OutlookSelection {
  explicit OutlookSelection(const SmartUI& outlookList);

  std::size_t outlookTasks = 0;  // Outlook's own
  std::size_t tarnelTasks = 0;   // linked to a task

  bool isEmpty() const { return outlookTasks + tarnelTasks == 0; }
  // What will happen to them, then "Proceed?". The fates are phrases such as "be deleted in Outlook".
  std::string question(const std::string& outlookFate, const std::string& tarnelFate) const;
};

}  // namespace tarnel
