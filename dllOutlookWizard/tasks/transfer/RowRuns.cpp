#include "RowRuns.h"

#include "CStringBag.h"
#include "CheckedRows.h"
#include "Conversions.h"
#include "LinkWalk.h"
#include "OutlookItems.h"
#include "OutlookLink.h"
#include "StandardHandler.h"
#include "m_OutlookWizard.h"
#include "manageOutlookRef.h"

namespace tarnel {
namespace {

class OutlookRowRun {
 public:
  OutlookRowRun(TaskLists& lists, const OutlookRowSteps& steps) : lists_(lists), steps_(steps) {}

  void operator()(SmartItem& row) {
    try {
      act(row);
    } catch (const std::exception&) {
      if (!outlookAnswered_) throw;
      // What this row left pending would go to the database with the next one.
      if (lists_.theTaskRows) lists_.theTaskRows->CancelBatch();
    }
  }

 private:
  void act(SmartItem& row) {
    const CStringBag tag(row.Tag());
    const std::string entryId = tag.ReadItem(outlookLink::entryId);
    const std::string key = row.Key();
    const bool isLinked = row.Picture() == rowPicture::tarnel;
    row.setChecked(false);
    letEventsRunAttached();  // may fill the list again: the row itself is not to be touched any more
    const auto folder = outlookNameSpace().GetDefaultFolder(outlook::DefaultFolder::tasks);
    outlookAnswered_ = true;
    const auto item = outlookNameSpace().GetItemFromID(entryId, folder->StoreID());
    if (isLinked) changeTask(tag.ReadItem(outlookLink::tarnelGuid));
    if (!item) return;
    steps_.changeItem(outlook::asTask(item));
    if (SmartItems& shown = lists_.outlookList.Items(); shown.Exists(key)) shown.Remove(key);
  }

  void changeTask(const std::string& guid) {
    if (!lists_.theTaskRows) lists_.refillTarnelList();
    const auto tasks = lists_.taskRows();
    tasks->Find("tskGUIDID", guid);
    if (!tasks->atEOF()) steps_.changeTask(*tasks);
  }

  TaskLists& lists_;
  const OutlookRowSteps& steps_;
  bool outlookAnswered_ = false;
};

void completeItem(outlook::TaskItem& item, const CStringBag& tag) {
  item.setStatus(outlook::TaskStatus::complete);
  item.setTotalWork(toLong(tag.ReadItem(rowTag::timeNeeded)));
  item.setActualWork(toLong(tag.ReadItem(rowTag::timeSpent)));
  item.Save();
}

void changeLinkedItems(TaskLists& lists, const SmartItem& row, const TarnelRowSteps& steps) {
  if (!steps.isLinked(row)) return;
  const CStringBag tag(row.Tag());
  walkLinkedItems(row.Key(), [&](const LinkedItem& match) {
    if (!match.isLive()) return;
    completeItem(*safeItem(match.item)->Item(), tag);
    steps.changeItem(match.item);
    SmartItems& shown = lists.outlookList.Items();
    if (shown.Exists(match.entryId)) shown.Remove(match.entryId);
  });
}

}  // namespace

bool isLinkedByTag(const SmartItem& row) { return !CStringBag(row.Tag()).ReadItem(rowTag::outlookId).empty(); }

void runOverOutlookRows(TaskLists& lists, const OutlookRowSteps& steps) {
  manageOutlookRef();  // out of reach shows at the first use
  OutlookRowRun run(lists, steps);
  forEachCheckedRow(lists.outlookList, [&](SmartItem& row) { run(row); });
  lists.tarnelList.Refresh();
  lists.outlookList.Refresh();
  closeOutlook();
  letEventsRun();
  lists.closeRows();
  lists.refillTarnelList();
  lists.GetOutlookTasks();
}

void runOverTarnelRows(TaskLists& lists, const TarnelRowSteps& steps) {
  outlookNameSpace().GetDefaultFolder(outlook::DefaultFolder::tasks);
  lists.openAllTasks();
  forEachCheckedRow(lists.tarnelList, [&](SmartItem& row) {
    changeLinkedItems(lists, row, steps);
    steps.changeTask(row);
  });
  lists.taskRows()->UpdateBatch(ado::Affect::allChapters);
  closeOutlook();
  lists.closeRows();
  lists.refillTarnelList();
}

}  // namespace tarnel
