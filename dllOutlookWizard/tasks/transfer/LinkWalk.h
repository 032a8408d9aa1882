#pragma once

#include <functional>
#include <memory>
#include <string>

#include "Application.h"

namespace tarnel {

// One Outlook task that bears a task's GUID.
struct LinkedItem {
  std::string entryId;
  std::shared_ptr<outlook::TaskItem> item;  // null when the entry id led to nothing

  // In a folder that counts: neither gone nor thrown away.
  bool isLive() const;
};

// Visits every item of the default Tasks folder whose user property BrackwellTarnelGUID is `guid`, and passes over
// those that can't be fetched. False when no item bears the GUID, so that nothing was visited. Fails when the folder
// holds no item at all: the property can't be asked for then.
bool walkLinkedItems(const std::string& guid, const std::function<void(const LinkedItem&)>& visit);

}  // namespace tarnel
