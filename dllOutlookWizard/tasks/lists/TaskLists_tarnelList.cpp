#include <string>

#include "CStringBag.h"
#include "Captions.h"
#include "Conversions.h"
#include "Failure.h"
#include "Hourglass.h"
#include "SetTimeFormat.h"
#include "StandardHandler.h"
#include "TaskLists.h"
#include "TaskQuery.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

constexpr Color rowColor = rgb(255, 255, 204);

// The level's name. Failure 9 for a level outside 0 to 4.
const std::string& levelName(const std::array<std::string, 5>& names, const Variant& level) {
  const std::int32_t index = toLong(level);
  if (index < 0 || static_cast<std::size_t>(index) >= names.size()) failSubscript();
  return names[static_cast<std::size_t>(index)];
}

// A column of the rows being shown. Its last question is remembered, so that a failure can name the column.
class TaskColumn {
 public:
  TaskColumn(ado::Recordset& rows, const char* name, const TaskColumn*& asked)
      : field_(rows.Fields(name)), asked_(&asked) {}

  const Variant& value() const {
    *asked_ = this;
    return field_.Value();
  }
  const std::string& name() const { return field_.Name(); }

 private:
  ado::Field field_;
  const TaskColumn** asked_;
};

// The columns of the rows being shown, looked up once.
struct TaskColumns {
  explicit TaskColumns(ado::Recordset& records) : rows(records) {}
  TaskColumns(const TaskColumns&) = delete;
  TaskColumns& operator=(const TaskColumns&) = delete;

  ado::Recordset& rows;
  const TaskColumn* asked = nullptr;
  TaskColumn description{rows, "tskDesc", asked}, guid{rows, "tskGUIDID", asked}, importance{rows, "tskImp", asked},
      difficulty{rows, "tskDifficulty", asked}, needed{rows, "tskTimeNeeded", asked},
      spent{rows, "tskTimeSpent", asked}, scheduled{rows, "tskTimeScheduled", asked},
      project{rows, "tskProject", asked}, projectKey{rows, "tskProjectKey", asked},
      points{rows, "tskPossPoints", asked}, outlookId{rows, "tskOUTEntityID", asked};
};

std::string statusTag(const TaskColumns& task, const std::string& timeNeeded) {
  return "Poss. Points: " + toText(task.points.value()) + ", Project: " + textOrEmpty(task.project.value()) +
         ",  Importance: " + levelName(session().theImportanceNames, task.importance.value()) +
         ",  Difficulty: " + levelName(session().theDifficultyNames, task.difficulty.value()) +
         ",  Time Needed: " + timeNeeded;
}

// A row's times: minutes, and how they read. A text is empty where SetTimeFormat has reported a failure.
struct TaskTimes {
  explicit TaskTimes(const TaskColumns& task)
      : needed(toLong(task.needed.value())),
        scheduled(toLong(task.scheduled.value())),
        left(std::int64_t{needed} - scheduled),
        leftText(SetTimeFormat(static_cast<double>(left))),
        neededText(SetTimeFormat(needed)),
        scheduledText(SetTimeFormat(scheduled)) {}

  bool failed() const { return leftText.empty() || neededText.empty() || scheduledText.empty(); }

  std::int32_t needed;
  std::int32_t scheduled;
  std::int64_t left;  // not scheduled yet
  std::string leftText;
  std::string neededText;
  std::string scheduledText;
};

std::string taskTag(const TaskColumns& task, const TaskTimes& times) {
  CStringBag bag;
  bag.WriteItem("IMP", toText(task.importance.value()));
  bag.WriteItem("DIFF", toText(task.difficulty.value()));
  bag.WriteItem("NEEDS", std::to_string(times.left));
  bag.WriteItem("PROJECT", toText(task.project.value()));
  bag.WriteItem("PROJECTKEY", toText(task.projectKey.value()));
  bag.WriteItem(rowTag::timeNeeded, std::to_string(times.needed));
  bag.WriteItem(rowTag::timeSpent, std::to_string(toLong(task.spent.value())));
  bag.WriteItem("TIMESCHEDULED", std::to_string(times.scheduled));
  bag.WriteItem("POINTS", toText(task.points.value()));
  bag.WriteItem("STATUSTAG", statusTag(task, times.leftText));
  bag.WriteItem(rowTag::outlookId, textOrEmpty(task.outlookId.value()));
  return bag.Contents();
}

void addRow(const TaskColumns& task, const TaskTimes& times, SmartUI& list) {
  std::string tag = taskTag(task, times);
  const char* picture = task.outlookId.value().isNull() ? rowPicture::none : rowPicture::outlook;
  list.Items().Add(0, toText(task.guid.value()), ZapAmps(toText(task.description.value())), SmartItemType::checkRow,
                   picture);
  SmartItem& row = list.LastItem();
  row.setBackColor(rowColor);
  row.setTag(std::move(tag));
  row.setToolTipText("Scheduled: " + times.scheduledText + "  Time Needed: " + times.neededText);
}

// A failure names the task and the column; its own words alone would leave the user to search the whole table. False
// where a time has no text: that was told already, and the wizard is on its way out.
bool addNamingTheTask(const TaskColumns& task, SmartUI& list) {
  try {
    const TaskTimes times(task);
    if (times.failed()) return false;
    addRow(task, times, list);
    return true;
  } catch (const Failure& failure) {
    const Variant held = task.asked->value();
    const std::string column = task.asked->name();
    throw Failure(failure.number(),
                  failure.description() + ": in the table TASKS, the task with tskGUIDID \"" +
                      textOrEmpty(task.guid.value()) + "\" (" + textOrEmpty(task.description.value()) + ") holds " +
                      (held.isNull() ? "Null" : "\"" + textOrEmpty(held) + "\"") + " in the column " + column +
                      ". Correct it there.",
                  failure.source());
  }
}

}  // namespace

bool TaskLists::GetTarnelTasks(const std::string& sortCode, const std::string& pickCode, SmartUI& list) {
  return standardHandler<bool>(modules::frmOutWiz, "GetTarnelTasks", [&](bool& filled) {
    for (SmartItem& row : list.Items()) row.setHighlighted(false);
    list.Items().Clear();
    const Hourglass hourglass;

    openTasks(taskQuery(sortCode, pickCode, theShowCompleted));
    list.resetDisplayPosition();

    const TaskColumns task(*theTaskRows);
    const std::int32_t total = theTaskRows->RecordCount();
    for (std::int32_t done = 1; !theTaskRows->atEOF(); theTaskRows->MoveNext(), ++done) {
      if (!addNamingTheTask(task, list)) return;
      platform().desktop.progress(done, total);
    }
    filled = true;
  });
}

}  // namespace tarnel
