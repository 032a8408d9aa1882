#include "CStringBag.h"
#include "CheckedRows.h"
#include "Conversions.h"
#include "Failure.h"
#include "LinkWalk.h"
#include "OutlookItems.h"
#include "OutlookLink.h"
#include "RowRuns.h"
#include "StandardHandler.h"
#include "TaskFields.h"
#include "TaskTransfer.h"
#include "m_OutlookWizard.h"
#include "manageOutlookRef.h"

namespace tarnel {
namespace {

// One run of the copy. The session is attached and the whole of TASKS open while it lives.
class TaskCopy {
 public:
  explicit TaskCopy(TaskLists& lists) : lists_(lists), rows_(lists.taskRows()), tasks_(*rows_) {}

  void copy(SmartItem& row) {
    if (!isLinkedByTag(row) && !wasLinkedMeanwhile(row))
      firstCopy(row);
    else if (!walkLinkedItems(row.Key(), [&](const LinkedItem& match) { updateOrReplace(row, match); }))
      relink(row);
  }

  std::string summary() const {
    return "Outlook Tasks created: " + std::to_string(created_) +
           ". Tasks in Outlook updated: " + std::to_string(updated_) + ".";
  }

 private:
  // False when the task has gone from the database: the row is passed over then.
  bool findTask(const SmartItem& row) {
    tasks_.Find("tskGUIDID", row.Key());
    return !tasks_.atEOF();
  }

  // Whether somebody else has copied the task since this list was filled: the record bears the mark, and the row shows
  // no link. A row that was copied in this view shows one.
  bool wasLinkedMeanwhile(const SmartItem& row) {
    return row.Picture() == rowPicture::none && findTask(row) &&
           !textOrEmpty(tasks_.Fields("tskOUTEntityID").Value()).empty();
  }

  void firstCopy(SmartItem& row) {
    if (!findTask(row)) return;
    // The mark is on disk before the item exists: a run that ends in between heals at the next one, as a relink.
    if (!mark(row.Key())) return;
    createItem(row);
    letEventsRunAttached(1);
    ++created_;
  }

  // False when somebody else has marked the task in this moment: the item that they make is enough.
  bool mark(const std::string& guid) {
    tasks_.Fields("tskOUTEntityID").setValue(guid);
    try {
      tasks_.UpdateBatch(ado::Affect::allChapters);
    } catch (const Failure& failure) {
      if (failure.number() != failure::writeConflict) throw;
      tasks_.CancelBatch();
      return false;
    }
    return true;
  }

  void relink(SmartItem& row) {
    if (!findTask(row)) return;
    createItem(row);
    tasks_.UpdateBatch(ado::Affect::allChapters);
    ++created_;
  }

  void updateOrReplace(SmartItem& row, const LinkedItem& match) {
    if (!findTask(row)) return;
    if (match.isLive()) {
      update(row, match);
    } else {
      createItem(row);
      tasks_.UpdateBatch(ado::Affect::allChapters);
      ++updated_;  // the task was in Outlook before, and is again
    }
  }

  void update(SmartItem& row, const LinkedItem& match) {
    const auto wrapper = safeItem(match.item);
    writeTaskToItem(tasks_, *wrapper->Item());
    ++updated_;
    wrapper->Item()->Save();
    if (SmartItems& shown = lists_.outlookList.Items(); shown.Exists(match.entryId)) {
      shown.Item(match.entryId).setCaption(description());
      shown.Item(match.entryId).setPicture(rowPicture::tarnel);
    }
    row.setPicture(rowPicture::outlook);
  }

  // Makes the Outlook task of the current record, linked, and shows it.
  void createItem(SmartItem& row) {
    const auto wrapper = safeItem(outlook::asTask(outlookApplication().CreateItem(outlook::ItemType::task)));
    const auto item = wrapper->Item();
    writeTaskToItem(tasks_, *item);
    item->UserProperties()->Add(outlookLink::tarnelGuid, outlook::PropertyType::text)->setValue(row.Key());
    item->Save();
    addOutlookRow(item->EntryID(), row.Key());
    row.setPicture(rowPicture::outlook);
  }

  void addOutlookRow(const std::string& entryId, const std::string& guid) {
    CStringBag bag;
    bag.WriteItem(outlookLink::entryId, entryId);
    bag.WriteItem(outlookLink::tarnelGuid, guid);
    lists_.outlookList.Items()
        .Add(0, entryId, description(), SmartItemType::checkRow, rowPicture::tarnel)
        .setTag(bag.Contents());
  }

  std::string description() const { return textOrEmpty(tasks_.Fields("tskDesc").Value()); }

  TaskLists& lists_;
  std::shared_ptr<ado::Recordset> rows_;  // this share outlasts what waiting events do to the form's
  ado::Recordset& tasks_;
  std::int32_t created_ = 0;
  std::int32_t updated_ = 0;
};

}  // namespace

bool Tarnel2OUTTasks(TaskLists& lists) {
  return standardHandler<bool>(modules::frmOutWiz, "Tarnel2OUTTasks", [&](bool& done) {
    if (!attachOrTell()) return;
    outlookNameSpace().GetDefaultFolder(outlook::DefaultFolder::tasks);
    lists.openAllTasks();
    TaskCopy run(lists);
    forEachCheckedRow(lists.tarnelList, [&](SmartItem& row) { run.copy(row); });
    lists.taskRows()->UpdateBatch(ado::Affect::all);

    tellUser(run.summary());
    for (SmartItem& row : lists.tarnelList.Items()) row.setChecked(false);
    closeOutlook();
    lists.outlookList.Refresh();
    lists.tarnelList.Refresh();
    done = true;
  });
}

}  // namespace tarnel
