#pragma once

#include <functional>
#include <memory>

#include "Item.h"
#include "TaskLists.h"

namespace tarnel {

// What a command does to one checked row of the Outlook list.
struct OutlookRowSteps {
  // The current record is the task that the row is linked to.
  std::function<void(ado::Recordset& task)> changeTask;
  std::function<void(const std::shared_ptr<outlook::TaskItem>& item)> changeItem;
};

// Runs over the checked rows of the Outlook list; a row whose item was changed leaves the list, both lists are filled
// again at the end. Once an item could be asked for, a failure on a row passes on to the next one without a word.
void runOverOutlookRows(TaskLists& lists, const OutlookRowSteps& steps);

// What the row's tag says of its link, as it was when the list was filled.
bool isLinkedByTag(const SmartItem& row);

// What a command does for one checked row of the Tarnel list.
struct TarnelRowSteps {
  // Whether items are looked for at all.
  std::function<bool(const SmartItem& row)> isLinked = isLinkedByTag;
  std::function<void(const std::shared_ptr<outlook::TaskItem>& item)> changeItem;
  std::function<void(const SmartItem& row)> changeTask;
};

// Runs over the checked rows of the Tarnel list with the whole of TASKS open: `changeItem` for every live item that
// bears the task's GUID, whose row then leaves the Outlook list, and `changeTask` after that for each row. Completes
// the items first: status, and the minutes that the row's tag holds. The Tarnel list is filled again at the end.
void runOverTarnelRows(TaskLists& lists, const TarnelRowSteps& steps);

}  // namespace tarnel
