#include "AppointmentsTab.h"

#include "StandardHandler.h"
#include "TimeBar.h"

namespace tarnel {
namespace {

void makeActions(SmartUI& bar) {
  const auto add = [&bar](const char* key, const char* caption, const char* toolTip) -> SmartItem& {
    SmartItem& item = bar.Items().Add(0, key, caption, SmartItemType::button);
    item.setToolTipText(toolTip);
    return item;
  };
  add("ALL", "All", "Select all Task Appointments");
  add("NONE", "None", "Unselect all Task Appointments");
  bar.Items().Add(0, "", "", SmartItemType::separator);
  add("DELETE", "Delete", "");
  add("UPDATE", "Copy/Update", "Copy selected Task Appointments to Outlook").setBold(true);
}

}  // namespace

AppointmentsTab::AppointmentsTab(FormState& form)
    : panel("picWiz", 0),
      splitAppts("splitAppts"),
      schedules(form),
      form_(form),
      tarnelPane_(1, 3, [this](float width, float height) { layTarnelPane(width, height); }),
      outlookPane_(2, 4, [this](float width, float height) { layOutlookPane(width, height); }),
      tarnelCaption_("lblShow", 1, Label::Look::band, "Tarnel"),
      dateLabel_("lblShow", 0, Label::Look::text, "Date to Show:"),
      ctDeadline_("ctDeadline"),
      tarnelActions_("smtApptActions", 0, SmartUI::Look::bar),
      outlookCaption_("lblShow", 2, Label::Look::band, "Microsoft Outlook"),
      smtTimebarSizer_("smtTimebarSizer", SmartUI::Look::bar),
      outlookActions_("smtApptActions", 1, SmartUI::Look::bar) {
  panel.setVisible(false);
  ctDeadline_.setToolTipText("Select the Date to display");
  ctDeadline_.setAccessibleName("Date to Show");
  schedules.tarnelSide.setAccessibleName("Task Appointments in Tarnel");
  schedules.outlookSide.setAccessibleName("Appointments in Microsoft Outlook");
  makeActions(tarnelActions_);
  makeActions(outlookActions_);
  makeTimeBarItems(smtTimebarSizer_);
  splitAppts.setContainer(panel);
  for (Control* control : std::initializer_list<Control*>{&tarnelCaption_, &dateLabel_, &ctDeadline_,
                                                          &schedules.tarnelSide, &tarnelActions_})
    control->setContainer(tarnelPane_.panel);
  for (Control* control :
       std::initializer_list<Control*>{&outlookCaption_, &smtTimebarSizer_, &schedules.outlookSide, &outlookActions_})
    control->setContainer(outlookPane_.panel);
  splitAppts.Panes("Left").setContent(tarnelPane_.panel);
  splitAppts.Panes("Right").setContent(outlookPane_.panel);

  connections_.push_back(ctDeadline_.Change.connect([this] { ctDeadline_Change(); }));
  connections_.push_back(smtTimebarSizer_.Click.connect(
      [this](SmartItem& item) { smtTimebarSizer_Click(smtTimebarSizer_, schedules, item); }));
  connections_.push_back(tarnelActions_.Click.connect([this](SmartItem& item) { smtApptActions_Click(0, item); }));
  connections_.push_back(outlookActions_.Click.connect([this](SmartItem& item) { smtApptActions_Click(1, item); }));
}

std::vector<Control*> AppointmentsTab::controls() {
  return {&panel,
          &splitAppts,
          &tarnelPane_.panel,
          &tarnelCaption_,
          &dateLabel_,
          &ctDeadline_,
          &schedules.tarnelSide,
          &tarnelActions_,
          &outlookPane_.panel,
          &outlookCaption_,
          &smtTimebarSizer_,
          &schedules.outlookSide,
          &outlookActions_,
          &tarnelPane_.resizer,
          &outlookPane_.resizer};
}

void AppointmentsTab::addImages(const std::vector<std::string>& pictures) {
  for (ctMDay* schedule : schedules.both()) {
    schedule->setUseImages(true);
    for (const std::string& picture : pictures) schedule->AddImage(picture);
  }
}

void AppointmentsTab::showFormDate() {
  ctDeadline_.setDate(form_.formCurDate);
  schedules.showFormDate();
}

void AppointmentsTab::SetCals() { tarnel::SetCals(smtTimebarSizer_, schedules); }

void AppointmentsTab::ctDeadline_Change() {
  if (form_.formLoading) return;
  standardHandler(modules::frmOutWiz, "ctDeadline_Change", [this] {
    form_.formCurDate = ctDeadline_.Date();
    schedules.showFormDate();
    schedules.refreshDay();
  });
}

}  // namespace tarnel
