#include <algorithm>

#include "CStringBag.h"
#include "Conversions.h"
#include "OutlookItems.h"
#include "OutlookLink.h"
#include "Platform.h"
#include "TaskLists.h"
#include "manageOutlookRef.h"

namespace tarnel {
namespace {

constexpr std::int32_t mostRows = 2000;

// What the item's link property holds, read past Outlook's guard.
std::string linkedGuid(const std::shared_ptr<outlook::TaskItem>& task) {
  const auto property = safeItem(task)->UserProperties()->Item(outlookLink::tarnelGuid);
  return property ? textOrEmpty(property->Value()) : std::string();
}

void addRow(const std::shared_ptr<outlook::Item>& item, SmartUI& list) {
  const std::string entryId = item->EntryID();
  CStringBag bag;
  bag.WriteItem(outlookLink::entryId, entryId);
  // An empty property links the item all the same.
  const bool linked = item->UserProperties()->Item(outlookLink::tarnelGuid) != nullptr;
  if (linked) bag.WriteItem(outlookLink::tarnelGuid, linkedGuid(outlook::asTask(item)));
  list.Items().Add(0, entryId, item->subject(), SmartItemType::checkRow,
                   linked ? rowPicture::tarnel : rowPicture::outlook);
  list.LastItem().setTag(bag.Contents());
}

}  // namespace

bool TaskLists::GetOutlookTasks() {
  outlookList.Items().Clear();
  if (!attachOrTell()) return false;
  outlookList.Items().Clear();  // a copy among the waiting events may have added rows
  const auto folder = outlookApplication().Session()->GetDefaultFolder(outlook::DefaultFolder::tasks);
  const auto open = folder->items()->Restrict("[Complete] = false");
  const std::int32_t count = std::min(open->Count(), mostRows);
  for (std::int32_t i = 1; i <= count; ++i) {
    addRow(open->Item(i), outlookList);
    platform().desktop.progress(i, count);
  }
  return true;
}

}  // namespace tarnel
