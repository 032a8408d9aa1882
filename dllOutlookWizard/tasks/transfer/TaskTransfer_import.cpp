#include "CCreateGuid.h"
#include "CStringBag.h"
#include "CheckedRows.h"
#include "OutlookItems.h"
#include "OutlookLink.h"
#include "Platform.h"
#include "StandardHandler.h"
#include "TaskFields.h"
#include "TaskQuery.h"
#include "TaskTransfer.h"
#include "m_OutlookWizard.h"
#include "manageOutlookRef.h"

namespace tarnel {
namespace {

// Where an imported task lands.
struct Destination {
  std::string project;
  std::string projectKey;
  bool current;
};

// A pick of the user's projects names its own; the fixed picks and the Outlook project itself mean the latter.
Destination destination(const TaskLists& lists) {
  const std::string& pick = lists.pickCode();
  if (isFixedPick(pick) || pick == session().theOutlookProjectKey)
    return {session().theOutlookProjectName, session().theOutlookProjectKey, pick == currentTasksPick};
  return {lists.theTaskPickName, lists.theTaskPickKey, false};
}

// One run of the import. Works in the records of the last fill, so a task outside the pick is not found.
class TaskImport {
 public:
  explicit TaskImport(TaskLists& lists) : lists_(lists), destination_(destination(lists)) {}

  void take(SmartItem& checked) {
    const std::string key = checked.Key();
    const std::string entryId = CStringBag(checked.Tag()).ReadItem(outlookLink::entryId);
    checked.setChecked(false);
    letEventsRunAttached();
    // What ran in between may have filled the list again.
    if (!lists_.outlookList.Items().Exists(key)) return;
    SmartItem& row = lists_.outlookList.Items().Item(key);
    const auto folder = outlookNameSpace().GetDefaultFolder(outlook::DefaultFolder::tasks);
    const auto wrapper = safeItem(outlook::asTask(outlookNameSpace().GetItemFromID(entryId, folder->StoreID())));
    if (row.Picture() == rowPicture::tarnel)
      updateTask(row, *wrapper);
    else if (row.Picture() == rowPicture::outlook)
      createTask(row, *wrapper);
  }

  std::string summary() const {
    return "Tasks created: " + std::to_string(created_) + ". Tasks in Tarnel updated: " + std::to_string(updated_) +
           ".";
  }

 private:
  void updateTask(const SmartItem& row, outlook::SafeTaskItem& wrapper) {
    if (!lists_.theTaskRows) lists_.refillTarnelList();
    const auto tasks = lists_.taskRows();
    tasks->Find("tskGUIDID", CStringBag(row.Tag()).ReadItem(outlookLink::tarnelGuid));
    if (tasks->atEOF()) return;
    writeItemToTask(wrapper, *tasks, TaskRow::existing);
    tasks->UpdateBatch(ado::Affect::allChapters);
    ++updated_;
  }

  void createTask(SmartItem& row, outlook::SafeTaskItem& wrapper) {
    const std::string guid = GetANewGuid();
    const auto tasks = lists_.taskRows();
    tasks->AddNew();
    tasks->Fields("tskGUIDID").setValue(guid);
    tasks->Fields("tskOUTEntityID").setValue(guid);
    tasks->Fields("tskProject").setValue(destination_.project);
    tasks->Fields("tskProjectKey").setValue(destination_.projectKey);
    tasks->Fields("tskCurrent").setValue(destination_.current);
    writeItemToTask(wrapper, *tasks, TaskRow::fresh);
    ++created_;
    tasks->UpdateBatch(ado::Affect::allChapters);

    const auto item = wrapper.Item();
    item->UserProperties()->Add(outlookLink::tarnelGuid, outlook::PropertyType::text)->setValue(guid);
    const std::string key = row.Key();
    row.setPicture(rowPicture::tarnel);
    letEventsRunAttached(1);
    linkRow(key, guid);
    item->Save();
  }

  void linkRow(const std::string& key, const std::string& guid) {
    SmartItems& shown = lists_.outlookList.Items();
    if (!shown.Exists(key)) return;
    CStringBag bag(shown.Item(key).Tag());
    bag.WriteItem(outlookLink::tarnelGuid, guid);
    shown.Item(key).setTag(bag.Contents());
  }

  TaskLists& lists_;
  Destination destination_;
  std::int32_t created_ = 0;
  std::int32_t updated_ = 0;
};

}  // namespace

bool MakeUpdateOutlookTasksInTarnel(TaskLists& lists) {
  return standardHandler<bool>(modules::frmOutWiz, "MakeUpdateOutlookTasksInTarnel", [&](bool& done) {
    TaskImport run(lists);
    manageOutlookRef();  // out of reach shows at the first use
    forEachCheckedRow(lists.outlookList, [&](SmartItem& row) { run.take(row); });
    platform().desktop.doEvents();
    lists.taskRows()->UpdateBatch(ado::Affect::allChapters);
    lists.closeRows();

    lists.tarnelList.Refresh();
    lists.outlookList.Refresh();
    closeOutlook();
    letEventsRun();
    tellUser(run.summary());
    lists.refillTarnelList();
    done = true;
  });
}

}  // namespace tarnel
