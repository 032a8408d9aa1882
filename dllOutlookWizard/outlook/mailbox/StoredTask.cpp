#include "StoredTask.h"

namespace tarnel::mailbox {
namespace {

void requireWork(std::int32_t minutes, const char* what) {
  if (minutes < 0)
    throw Failure(failure::automation, std::string(what) + " can't be set: work is not negative.", "Outlook.TaskItem");
}

}  // namespace

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

void StoredTask::setStatus(outlook::TaskStatus status) {
  if (status < outlook::TaskStatus::notStarted || status > outlook::TaskStatus::waiting)
    throw Failure(failure::automation, "Status can't be set: there is no such status.", "Outlook.TaskItem");
  setTaskStatus(change(), status, wallSecondsOf(state()->mailbox().clock.now()));
}

void StoredTask::setDueDate(Date date) { change().dueDate = midnightOf(outlookSecondsOf(date, "The due date")); }

void StoredTask::setTotalWork(std::int32_t minutes) {
  requireWork(minutes, "Total work");
  change().totalWork = minutes;
}

void StoredTask::setActualWork(std::int32_t minutes) {
  requireWork(minutes, "Actual work");
  change().actualWork = minutes;
}

}  // namespace tarnel::mailbox
