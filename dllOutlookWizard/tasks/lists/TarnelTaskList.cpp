#include <string>

#include "CStringBag.h"
#include "Conversions.h"
#include "Hourglass.h"
#include "ItemText.h"
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

// The columns of the rows being shown, looked up once.
struct TaskColumns {
  explicit TaskColumns(ado::Recordset& rows)
      : description(rows.Fields("tskDesc")),
        guid(rows.Fields("tskGUIDID")),
        importance(rows.Fields("tskImp")),
        difficulty(rows.Fields("tskDifficulty")),
        needed(rows.Fields("tskTimeNeeded")),
        spent(rows.Fields("tskTimeSpent")),
        scheduled(rows.Fields("tskTimeScheduled")),
        project(rows.Fields("tskProject")),
        projectKey(rows.Fields("tskProjectKey")),
        points(rows.Fields("tskPossPoints")),
        outlookId(rows.Fields("tskOUTEntityID")) {}

  ado::Field description, guid, importance, difficulty, needed, spent, scheduled, project, projectKey, points,
      outlookId;
};

std::string statusTag(const TaskColumns& task, const std::string& timeNeeded) {
  return "Poss. Points: " + toText(task.points.Value()) + ", Project: " + textOrEmpty(task.project.Value()) +
         ",  Importance: " + levelName(session().theImportanceNames, task.importance.Value()) +
         ",  Difficulty: " + levelName(session().theDifficultyNames, task.difficulty.Value()) +
         ",  Time Needed: " + timeNeeded;
}

// A row's times: minutes, and how they read. A text is empty where SetTimeFormat has reported a failure.
struct TaskTimes {
  explicit TaskTimes(const TaskColumns& task)
      : needed(toLong(task.needed.Value())),
        scheduled(toLong(task.scheduled.Value())),
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
  bag.WriteItem("IMP", toText(task.importance.Value()));
  bag.WriteItem("DIFF", toText(task.difficulty.Value()));
  bag.WriteItem("NEEDS", std::to_string(times.left));
  bag.WriteItem("PROJECT", toText(task.project.Value()));
  bag.WriteItem("PROJECTKEY", toText(task.projectKey.Value()));
  bag.WriteItem(rowTag::timeNeeded, std::to_string(times.needed));
  bag.WriteItem(rowTag::timeSpent, std::to_string(toLong(task.spent.Value())));
  bag.WriteItem("TIMESCHEDULED", std::to_string(times.scheduled));
  bag.WriteItem("POINTS", toText(task.points.Value()));
  bag.WriteItem("STATUSTAG", statusTag(task, times.leftText));
  bag.WriteItem(rowTag::outlookId, textOrEmpty(task.outlookId.Value()));
  return bag.Contents();
}

void addRow(const TaskColumns& task, const TaskTimes& times, SmartUI& list) {
  std::string tag = taskTag(task, times);
  const char* picture = task.outlookId.Value().isNull() ? rowPicture::none : rowPicture::outlook;
  list.Items().Add(0, toText(task.guid.Value()), ZapAmps(toText(task.description.Value())), ItemType::checkRow,
                   picture);
  SmartItem& row = list.LastItem();
  row.setBackColor(rowColor);
  row.setTag(std::move(tag));
  row.setToolTipText("Scheduled: " + times.scheduledText + "  Time Needed: " + times.neededText);
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
      const TaskTimes times(task);
      if (times.failed()) return;  // told already, and the wizard is on its way out
      addRow(task, times, list);
      platform().desktop.progress(done, total);
    }
    filled = true;
  });
}

}  // namespace tarnel
