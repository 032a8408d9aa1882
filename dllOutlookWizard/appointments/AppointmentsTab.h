#pragma once

#include <vector>

#include "FormState.h"
#include "Label.h"
#include "Panels.h"
#include "SSResizer.h"
#include "SSSplitter.h"
#include "SmartUI.h"
#include "ctDropDate.h"
#include "ctMDay.h"

namespace tarnel {

// The Appointments tab: one day of Task Appointments on the left, the same day of Outlook's calendar on the right.
class AppointmentsTab {
 public:
  explicit AppointmentsTab(FormState& form);

  PictureBox panel;  // picWiz(0)
  SSSplitter splitAppts;

  // The tab's controls in tab order, containers before what is in them.
  std::vector<Control*> controls();
  // Gives both schedules their pictures: 1 Outlook, 2 Tarnel, 3 the check.
  void addImages(const std::vector<std::string>& pictures);
  // Puts the date box and both schedules on the form's day.
  void showFormDate();

 private:
  void layTarnelPane();
  void layOutlookPane();

  FormState& form_;
  SSPanel tarnelPane_;   // paneAppt(1)
  SSPanel outlookPane_;  // paneAppt(2)
  Label tarnelCaption_;  // lblShow(1)
  Label dateLabel_;      // lblShow(0)
  ctDropDate ctDeadline_;
  ctMDay tarnelSchedule_;  // ctDaySked(0)
  SmartUI tarnelActions_;  // smtApptActions(0)
  Label outlookCaption_;   // lblShow(2)
  SmartUI smtTimebarSizer_;
  ctMDay outlookSchedule_;   // ctDaySked(1)
  SmartUI outlookActions_;   // smtApptActions(1)
  SSResizer tarnelResizer_;  // SSResizer1(3)
  SSResizer outlookResizer_;
  std::vector<Connection> connections_;
};

}  // namespace tarnel
