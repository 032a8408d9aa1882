#include "Conversions.h"
#include "OutlookItems.h"
#include "Platform.h"
#include "RowRuns.h"
#include "SelectionQuestion.h"
#include "StandardHandler.h"
#include "TaskTransfer.h"
#include "m_OutlookWizard.h"
#include "manageOutlookRef.h"

namespace tarnel {
namespace {

constexpr std::int32_t doneStatus = 0;

void setDone(ado::Recordset& task) {
  task.Fields("tskStatus").setValue(doneStatus);
  task.Fields("tskDoneDate").setValue(platform().clock.now());
}

// The task's row leaves the Tarnel list, or stays as a completed one where those are shown.
void showAsDone(TaskLists& lists, const std::string& guid) {
  SmartItems& shown = lists.tarnelList.Items();
  if (!shown.Exists(guid)) return;
  if (lists.theShowCompleted)
    shown.Item(guid).setPicture(rowPicture::none);
  else
    shown.Remove(guid);
}

}  // namespace

bool MarkOutlookTasksAsDone(TaskLists& lists) {
  return standardHandler<bool>(modules::frmOutWiz, "MarkOutlookTasksAsDone", [&](bool& done) {
    const OutlookSelection selection(lists.outlookList);
    if (selection.isEmpty()) {
      tellUser("No Outlook Tasks or Tarnel-based Tasks selected to marked as done.");
      return;
    }
    if (!askUser(selection.question("be marked as done in Outlook", "be marked as done in both Outlook and Tarnel")))
      return;

    OutlookRowSteps steps;
    steps.changeTask = [&](ado::Recordset& task) {
      setDone(task);
      task.UpdateBatch(ado::Affect::allChapters);
      showAsDone(lists, textOrEmpty(task.Fields("tskGUIDID").Value()));
    };
    steps.changeItem = [](const std::shared_ptr<outlook::TaskItem>& item) {
      const auto wrapper = safeItem(item);
      wrapper->Item()->setStatus(outlook::TaskStatus::complete);
      wrapper->Item()->Save();
    };
    runOverOutlookRows(lists, steps);
    done = true;
  });
}

bool MarkTarnelTasksAsDone(TaskLists& lists) {
  return standardHandler<bool>(modules::frmOutWiz, "MarkTarnelTasksAsDone", [&](bool& done) {
    if (!attachOrTell()) return;
    TarnelRowSteps steps;
    steps.changeItem = [](const std::shared_ptr<outlook::TaskItem>&) {};  // completing it is all
    // A task that was copied in this view is linked, which its row's tag doesn't know yet.
    steps.isLinked = [&](const SmartItem& row) {
      const auto tasks = lists.taskRows();
      tasks->Find("tskGUIDID", row.Key());
      return tasks->atEOF() ? isLinkedByTag(row) : !textOrEmpty(tasks->Fields("tskOUTEntityID").Value()).empty();
    };
    steps.changeTask = [&](const SmartItem& row) {
      const auto tasks = lists.taskRows();
      tasks->Find("tskGUIDID", row.Key());
      if (tasks->atEOF()) return;
      setDone(*tasks);
      tasks->Update();
    };
    runOverTarnelRows(lists, steps);
    done = true;
  });
}

}  // namespace tarnel
