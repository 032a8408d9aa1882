#include "TaskFields.h"

#include <array>
#include <optional>

#include "Conversions.h"
#include "Failure.h"
#include "Platform.h"
#include "StandardHandler.h"
#include "TaskPoints.h"

namespace tarnel {
namespace {

using outlook::Importance;
using outlook::TaskStatus;

// tskStatus: 0 done, 1 in progress, 2 waiting, 3 not started.
constexpr std::array<TaskStatus, 4> statusOfTask{TaskStatus::complete, TaskStatus::inProgress, TaskStatus::waiting,
                                                 TaskStatus::notStarted};
constexpr std::array<Importance, 5> importanceOfTask{Importance::low, Importance::low, Importance::normal,
                                                     Importance::high, Importance::high};
constexpr Date firstUsableDeadline{1};
constexpr Date firstUnusableDueDate{219513};  // 2501-01-01: a later one means no date, or none that counts
constexpr std::int32_t minutesNeededAtLeast = 10;

template <class T, std::size_t Count>
std::optional<T> lookUp(const std::array<T, Count>& table, const Variant& index) {
  if (index.isNull()) return {};
  const std::int32_t i = toLong(index);
  if (i < 0 || static_cast<std::size_t>(i) >= Count) return {};
  return table[static_cast<std::size_t>(i)];
}

std::int32_t minutesOrZero(const Variant& minutes) { return minutes.isNull() ? 0 : toLong(minutes); }

std::int32_t statusFromItem(TaskStatus status) {
  switch (status) {
    case TaskStatus::inProgress:
      return 1;
    case TaskStatus::complete:
      return 0;
    default:
      return 3;
  }
}

std::int32_t importanceFromItem(Importance importance) {
  switch (importance) {
    case Importance::low:
      return 0;
    case Importance::high:
      return 4;
    default:
      return 2;
  }
}

// An item without a body adds nothing: a task without notes stays one, and one with notes keeps them.
void writeNotes(const std::string& body, ado::Recordset& task) {
  ado::Field notes = task.Fields("tskNotes");
  if (!body.empty()) notes.setValue(textOrEmpty(notes.Value()) + body);
  task.Fields("tskHasNotes").setValue(!textOrEmpty(notes.Value()).empty());
}

void writeFields(ado::Recordset& task, outlook::TaskItem& item) {
  item.setSubject(textOrEmpty(task.Fields("tskDesc").Value()));
  const Variant& deadline = task.Fields("tskDeadline").Value();
  if (isDate(deadline) && toDate(deadline) > firstUsableDeadline)
    ignoringFailures([&] { item.setDueDate(toDate(deadline)); });
  if (const auto status = lookUp(statusOfTask, task.Fields("tskStatus").Value())) item.setStatus(*status);
  item.setImportance(lookUp(importanceOfTask, task.Fields("tskImp").Value()).value_or(Importance::normal));
  item.setTotalWork(minutesOrZero(task.Fields("tskTimeNeeded").Value()));
  item.setActualWork(minutesOrZero(task.Fields("tskTimeSpent").Value()));
}

}  // namespace

void writeTaskToItem(ado::Recordset& task, outlook::TaskItem& item) {
  try {
    writeFields(task, item);
  } catch (const Failure& failure) {
    throw Failure(failure.number(),
                  failure.description() + " (task \"" + textOrEmpty(task.Fields("tskDesc").Value()) +
                      "\", tskGUIDID \"" + textOrEmpty(task.Fields("tskGUIDID").Value()) + "\")",
                  failure.source());
  }
}

void writeItemToTask(outlook::SafeTaskItem& wrapper, ado::Recordset& task, TaskRow kind) {
  const auto item = wrapper.Item();
  task.Fields("tskDesc").setValue(item->subject());
  writeNotes(wrapper.body(), task);
  if (const Date due = item->dueDate(); due < firstUnusableDueDate) task.Fields("tskDeadline").setValue(due);
  task.Fields("tskStatus").setValue(statusFromItem(item->Status()));
  task.Fields("tskImp").setValue(importanceFromItem(item->importance()));
  if (const std::int32_t spent = item->ActualWork(); spent > 0) task.Fields("tskTimeSpent").setValue(spent);
  const std::int32_t needed = item->TotalWork();
  task.Fields("tskTimeNeeded").setValue(needed > 0 ? needed : minutesNeededAtLeast);
  if (kind == TaskRow::fresh) {
    task.Fields("tskHasChecklist").setValue(false);
    task.Fields("tskHasSchedule").setValue(false);
  }
  task.Fields("tskPossPoints").setValue(possiblePoints(task));
  const Date now = platform().clock.now();
  if (kind == TaskRow::fresh) task.Fields("tskCreatedDate").setValue(now);
  task.Fields("tskLastMod").setValue(now);
}

}  // namespace tarnel
