#include "StandardHandler.h"
#include "TaskTransfer.h"
#include "TasksTab.h"

namespace tarnel {

void TasksTab::smtTaskActions_Click(int index, const SmartItem& item) {
  standardHandler(modules::frmOutWiz, "smtTaskActions_Click", [&] {
    const bool tarnelSide = index == 0;
    const std::string& key = item.Key();
    if (key == "ALL") tarnelSide ? MarkAllTarnelTasks() : MarkAllOutlookTasks();
    if (key == "NONE") tarnelSide ? UNMarkAllTarnelTasks() : UNMarkAllOutlookTasks();
    if (key == "UPDATE") tarnelSide ? Tarnel2OUTTasks(lists) : MakeUpdateOutlookTasksInTarnel(lists);
    if (key == "DELETE") tarnelSide ? MarkTarnelTasksAsDeleted(lists) : MarkOutlookTasksAsDeleted(lists);
    if (key == "MARKASDONE") tarnelSide ? MarkTarnelTasksAsDone(lists) : MarkOutlookTasksAsDone(lists);
  });
}

bool TasksTab::MarkAllTarnelTasks() { return markAll("MarkAllTarnelTasks", lists.tarnelList, true); }
bool TasksTab::UNMarkAllTarnelTasks() { return markAll("UNMarkAllTarnelTasks", lists.tarnelList, false); }
bool TasksTab::MarkAllOutlookTasks() { return markAll("MarkAllOutlookTasks", lists.outlookList, true); }
bool TasksTab::UNMarkAllOutlookTasks() { return markAll("UNMarkAllOutlookTasks", lists.outlookList, false); }

bool TasksTab::markAll(std::string_view procedure, SmartUI& list, bool checked) {
  return standardHandler<bool>(modules::frmOutWiz, procedure, [&](bool& done) {
    for (SmartItem& row : list.Items()) {
      if (row.Type() != SmartItemType::checkRow) continue;
      row.setChecked(checked);
      row.setHighlighted(false);
    }
    done = true;
  });
}

}  // namespace tarnel
