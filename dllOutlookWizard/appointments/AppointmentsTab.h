#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "DaySchedules.h"
#include "FormState.h"
#include "Label.h"
#include "LaidOutPane.h"
#include "Panels.h"
#include "SSSplitter.h"
#include "SmartUI.h"
#include "ctDropDate.h"

namespace tarnel {

// The Appointments tab: one day of Task Appointments on the left, the same day of Outlook's calendar on the right, an
// action bar under each. The date box chooses the day, the time bar how both schedules draw it.
class AppointmentsTab {
 public:
  explicit AppointmentsTab(FormState& form);

  PictureBox panel;  // picWiz(0)
  SSSplitter splitAppts;
  DaySchedules schedules;

  // The tab's controls in tab order, containers before what is in them.
  std::vector<Control*> controls();
  // Gives both schedules their pictures: 1 Outlook, 2 Tarnel, 3 the check.
  void addImages(const std::vector<std::string>& pictures);
  // Puts the date box and both schedules on the form's day.
  void showFormDate();
  // Puts the time bar and both schedules on the hours and the interval that the host asked for.
  void SetCals();

  // On the Tarnel side rows of Outlook are left alone.
  bool MarkAllTarnelAppts();
  bool UNMarkAllTarnelAppts();
  bool MarkAllOutlookAppts();
  bool UNMarkAllOutlookAppts();

 private:
  void ctDeadline_Change();
  void smtApptActions_Click(int index, const SmartItem& item);
  bool markAll(std::string_view procedure, ctMDay& schedule, bool marked);
  void layTarnelPane(float width, float height);
  void layOutlookPane(float width, float height);

  FormState& form_;
  LaidOutPane tarnelPane_;   // paneAppt(1)
  LaidOutPane outlookPane_;  // paneAppt(2)
  Label tarnelCaption_;      // lblShow(1)
  Label dateLabel_;          // lblShow(0)
  ctDropDate ctDeadline_;
  SmartUI tarnelActions_;  // smtApptActions(0)
  Label outlookCaption_;   // lblShow(2)
  SmartUI smtTimebarSizer_;
  SmartUI outlookActions_;  // smtApptActions(1)
  std::vector<Connection> connections_;
};

}  // namespace tarnel
