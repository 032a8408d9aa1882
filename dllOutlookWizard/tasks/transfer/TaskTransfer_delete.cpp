#include "CheckedRows.h"
#include "RowRuns.h"
#include "SelectionQuestion.h"
#include "SqlText.h"
#include "StandardHandler.h"
#include "TaskTransfer.h"
#include "clsUtilCMD.h"
#include "m_OutlookWizard.h"
#include "manageOutlookRef.h"

namespace tarnel {
namespace {

void execute(const std::string& statement) {
  clsUtilCMD command;
  command.SetCMDSQL(statement);
  command.doCMDExec();
}

bool userWantsToDelete(int count) {
  const std::string marked = "Tarnel tasks marked for deletion: " + std::to_string(count);
  if (count == 0) {
    tellUser(marked);
    return false;
  }
  return askUser(marked + (count == 1 ? ". Delete this task?" : ". Delete these tasks?"));
}

}  // namespace

bool deleteTask(const std::string& key) {
  return standardHandler<bool>(modules::frmOutWiz, "deleteTask", [&](bool& done) {
    execute("DELETE from TASKS WHERE tskGUIDID = " + sqlText(key));
    execute("DELETE from TASKKEYWORDS WHERE ktTASKGUID = " + sqlText(key));
    execute("DELETE from TASKAPPTS WHERE taTaskGUIDID = " + sqlText(key));
    done = true;
  });
}

bool MarkOutlookTasksAsDeleted(TaskLists& lists) {
  return standardHandler<bool>(modules::frmOutWiz, "MarkOutlookTasksAsDeleted", [&](bool& done) {
    const OutlookSelection selection(lists.outlookList);
    if (selection.isEmpty()) {
      tellUser("No Outlook Tasks or Tarnel-based Tasks selected to delete.");
      return;
    }
    if (!askUser(selection.question("be deleted in Outlook", "be deleted from Outlook but not from Tarnel"))) return;

    OutlookRowSteps steps;
    steps.changeTask = [](ado::Recordset& task) {
      task.Fields("tskOUTEntityID").setValue(Null{});
      task.UpdateBatch(ado::Affect::allChapters);
    };
    steps.changeItem = [](const std::shared_ptr<outlook::TaskItem>& item) { item->Delete(); };
    runOverOutlookRows(lists, steps);
    done = true;
  });
}

bool MarkTarnelTasksAsDeleted(TaskLists& lists) {
  return standardHandler<bool>(modules::frmOutWiz, "MarkTarnelTasksAsDeleted", [&](bool& done) {
    if (!userWantsToDelete(countCheckedRows(lists.tarnelList))) return;
    if (!attachOrTell()) return;
    TarnelRowSteps steps;
    steps.changeItem = [](const std::shared_ptr<outlook::TaskItem>& item) { item->Delete(); };
    steps.changeTask = [](const SmartItem& row) { deleteTask(row.Key()); };
    runOverTarnelRows(lists, steps);
    done = true;
  });
}

}  // namespace tarnel
