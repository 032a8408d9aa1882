#include "AppointmentsTab.h"

namespace tarnel {

AppointmentsTab::AppointmentsTab(FormState& form)
    : panel("picWiz", 0),
      splitAppts("splitAppts"),
      form_(form),
      tarnelPane_("paneAppt", 1),
      outlookPane_("paneAppt", 2),
      tarnelCaption_("lblShow", 1, Label::Look::band, "Tarnel"),
      dateLabel_("lblShow", 0, Label::Look::text, "Date to Show:"),
      ctDeadline_("ctDeadline"),
      tarnelSchedule_("ctDaySked", 0),
      tarnelActions_("smtApptActions", 0, SmartUI::Look::bar),
      outlookCaption_("lblShow", 2, Label::Look::band, "Microsoft Outlook"),
      smtTimebarSizer_("smtTimebarSizer", SmartUI::Look::bar),
      outlookSchedule_("ctDaySked", 1),
      outlookActions_("smtApptActions", 1, SmartUI::Look::bar),
      tarnelResizer_("SSResizer1", 3),
      outlookResizer_("SSResizer1", 4) {
  panel.setVisible(false);
  ctDeadline_.setToolTipText("Select the Date to display");
  splitAppts.setContainer(panel);
  for (Control* control :
       std::initializer_list<Control*>{&tarnelCaption_, &dateLabel_, &ctDeadline_, &tarnelSchedule_, &tarnelActions_})
    control->setContainer(tarnelPane_);
  for (Control* control :
       std::initializer_list<Control*>{&outlookCaption_, &smtTimebarSizer_, &outlookSchedule_, &outlookActions_})
    control->setContainer(outlookPane_);

  const auto placedByHandler = [this](SSResizer& resizer, SSPanel& pane, void (AppointmentsTab::*lay)()) {
    resizer.attach(pane);
    connections_.push_back(resizer.BeforeResize.connect([](SSResizer& itself) { itself.setRepositioning(false); }));
    connections_.push_back(resizer.ResizeComplete.connect([this, lay] { (this->*lay)(); }));
  };
  placedByHandler(tarnelResizer_, tarnelPane_, &AppointmentsTab::layTarnelPane);
  placedByHandler(outlookResizer_, outlookPane_, &AppointmentsTab::layOutlookPane);
  splitAppts.Panes("Left").setContent(tarnelPane_);
  splitAppts.Panes("Right").setContent(outlookPane_);
}

std::vector<Control*> AppointmentsTab::controls() {
  return {&panel,           &splitAppts,     &tarnelPane_,    &tarnelCaption_,  &dateLabel_,       &ctDeadline_,
          &tarnelSchedule_, &tarnelActions_, &outlookPane_,   &outlookCaption_, &smtTimebarSizer_, &outlookSchedule_,
          &outlookActions_, &tarnelResizer_, &outlookResizer_};
}

void AppointmentsTab::addImages(const std::vector<std::string>& pictures) {
  for (ctMDay* schedule : {&tarnelSchedule_, &outlookSchedule_}) {
    schedule->setUseImages(true);
    for (const std::string& picture : pictures) schedule->AddImage(picture);
  }
}

void AppointmentsTab::showFormDate() {
  ctDeadline_.setDate(form_.formCurDate);
  tarnelSchedule_.setShowDate(form_.formCurDate);
  outlookSchedule_.setShowDate(form_.formCurDate);
}

}  // namespace tarnel
