#include "TaskLists.h"

#include "Captions.h"
#include "Conversions.h"
#include "StandardHandler.h"
#include "TaskPicker.h"

namespace tarnel {

TaskLists::TaskLists(FormState& form)
    : smtSkedPickTasks("smtSkedPickTasks", SmartUI::Look::form, "Tasks to Schedule:"),
      tarnelList("smtTaskList", 0, SmartUI::Look::checkList),
      outlookList("smtTaskList", 1, SmartUI::Look::checkList),
      form_(form) {
  makePickerItems(smtSkedPickTasks);
  onPick_ =
      smtSkedPickTasks.Change.connect([this](SmartItem& item, const std::string&) { smtSkedPickTasks_Change(item); });
}

void TaskLists::smtSkedPickTasks_Change(SmartItem& item) {
  if (form_.formLoading) return;
  standardHandler(modules::frmOutWiz, "smtSkedPickTasks_Change", [&] {
    const bool isPick = item.Key() == taskPickKey;
    if (!isPick && item.Key() != sortPickKey) return;
    SmartItem* entry = GetItemSelected(item);
    if (!entry) failObjectNotSet();

    if (isPick) {
      item.setTag(entry->Key());
      theTaskPickName = textOrEmpty(item.Value());
      theTaskPickKey = item.Tag();
    } else if (entry->Key() == completedTasksKey) {
      switchCompleted(*entry);
    } else {
      item.setTag(entry->Key());
    }
    refillByPicker();
  });
}

void TaskLists::switchCompleted(SmartItem& entry) {
  form_.formLoading = true;  // checking the entry is a change of the control, too
  entry.setChecked(!entry.Checked());
  theShowCompleted = entry.Checked();
  form_.formLoading = false;
}

void TaskLists::refillByPicker() {
  if (!sortCode().empty() && !pickCode().empty()) refillTarnelList();
}

void TaskLists::openTasks(const std::string& statement) {
  theTaskData = std::make_shared<clsTaskList>();
  theTaskData->SetSQL(statement);
  theTaskRows.reset();
  theTaskData->GetDataKEY(theTaskRows);
  taskRows();
}

std::shared_ptr<ado::Recordset> TaskLists::taskRows() const {
  if (!theTaskRows) failObjectNotSet();
  return theTaskRows;
}

void TaskLists::openAllTasks() { openTasks("SELECT * FROM TASKS"); }

void TaskLists::closeRows() {
  if (!theTaskRows) return;
  closeIfOpen(*theTaskRows);
  theTaskRows.reset();
  theTaskData.reset();
}

}  // namespace tarnel
