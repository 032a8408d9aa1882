#include "TasksTab.h"

#include "TaskPicker.h"

namespace tarnel {
namespace {

struct ActionTips {
  const char* markAsDone;
  const char* remove;
  const char* update;
};

void makeActions(SmartUI& bar, const ActionTips& tips) {
  const auto add = [&bar](const char* key, const char* caption, const char* toolTip) {
    bar.Items().Add(0, key, caption, SmartItemType::button).setToolTipText(toolTip);
  };
  add("ALL", "All", "Select all Tasks");
  add("NONE", "None", "Unselect all Tasks");
  bar.Items().Add(0, "", "", SmartItemType::separator);
  add("MARKASDONE", "Mark as Done", tips.markAsDone);
  add("DELETE", "Delete", tips.remove);
  add("UPDATE", "Copy/Update", tips.update);
}

}  // namespace

TasksTab::TasksTab(FormState& form)
    : panel("picWiz", 1),
      splitTasks("splitTasks"),
      lists(form),
      tarnelPane_(0, 6, [this](float width, float height) { layTarnelPane(width, height); }),
      outlookPane_(3, 7, [this](float width, float height) { layOutlookPane(width, height); }),
      tarnelCaption_("lblShow", 3, Label::Look::band, "Tarnel"),
      outlookCaption_("lblShow", 4, Label::Look::band, "Microsoft Outlook"),
      tarnelActions_("smtTaskActions", 0, SmartUI::Look::bar),
      outlookActions_("smtTaskActions", 1, SmartUI::Look::bar) {
  makeActions(tarnelActions_,
              {"Mark as completed", "Delete selected Tasks", "Copy or updated selected tasks to Microsoft Outlook."});
  makeActions(outlookActions_, {"Mark Tasks as done in Outlook", "Delete selected Tasks from Outlook",
                                "Copy/Update selected tasks to a Tarnel Project"});
  lists.tarnelList.setAccessibleName("Tasks in Tarnel");
  lists.outlookList.setAccessibleName("Tasks in Microsoft Outlook");
  splitTasks.setContainer(panel);
  for (Control* control :
       std::initializer_list<Control*>{&tarnelCaption_, &lists.smtSkedPickTasks, &lists.tarnelList, &tarnelActions_})
    control->setContainer(tarnelPane_.panel);
  for (Control* control : std::initializer_list<Control*>{&outlookCaption_, &lists.outlookList, &outlookActions_})
    control->setContainer(outlookPane_.panel);
  splitTasks.Panes("Left").setContent(tarnelPane_.panel);
  splitTasks.Panes("Right").setContent(outlookPane_.panel);

  connections_.push_back(tarnelActions_.Click.connect([this](SmartItem& item) { smtTaskActions_Click(0, item); }));
  connections_.push_back(outlookActions_.Click.connect([this](SmartItem& item) { smtTaskActions_Click(1, item); }));
}

std::vector<Control*> TasksTab::controls() {
  return {&panel,
          &splitTasks,
          &tarnelPane_.panel,
          &tarnelCaption_,
          &lists.smtSkedPickTasks,
          &lists.tarnelList,
          &tarnelActions_,
          &outlookPane_.panel,
          &outlookCaption_,
          &lists.outlookList,
          &outlookActions_,
          &tarnelPane_.resizer,
          &outlookPane_.resizer};
}

void TasksTab::setupPicker() {
  setupSkedPickTasksList(lists.smtSkedPickTasks);
  setupSkedPickTasksSort(lists.smtSkedPickTasks);
  putPickerOnStart(lists.smtSkedPickTasks);
}

}  // namespace tarnel
