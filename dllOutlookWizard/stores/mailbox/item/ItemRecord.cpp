#include "ItemRecord.h"

namespace tarnel::mailbox {

void setTaskStatus(ItemRecord& task, outlook::TaskStatus status, WallSeconds today) {
  task.status = status;
  if (status == outlook::TaskStatus::complete) {
    task.percentComplete = 100;
    if (task.dateCompleted == noDate) task.dateCompleted = midnightOf(today);
    return;
  }
  if (status == outlook::TaskStatus::notStarted || task.percentComplete >= 100) task.percentComplete = 0;
  task.dateCompleted = noDate;
}

}  // namespace tarnel::mailbox
