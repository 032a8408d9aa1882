#include "StoredTask.h"

namespace tarnel::mailbox {

void StoredTask::setStatus(outlook::TaskStatus status) {
  if (status < outlook::TaskStatus::notStarted || status > outlook::TaskStatus::waiting)
    throw Failure(failure::automation, "Status can't be set: there is no such status.", "Outlook.TaskItem");
  setTaskStatus(change(), status, wallSecondsOf(mailbox().clock.now()));
}

void StoredTask::setDueDate(Date date) { change().dueDate = midnightOf(outlookSecondsOf(date, "The due date")); }

}  // namespace tarnel::mailbox
