#include "TaskPicker.h"

#include <array>

#include "StandardHandler.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

struct Entry {
  const char* key = "";
  const char* caption = "";
  SmartItemType type = SmartItemType::dropDownEntry;
};

constexpr std::array<Entry, 5> pickEntries{{
    {"T00", "Current Tasks"},
    {"T01", "Tarnel"},
    {"T02", "Tasks with Appointments"},
    {"T03", "Recommended Tasks"},
    {"D0A2", "Projects", SmartItemType::group},
}};

constexpr std::array<Entry, 22> sortEntries{{
    {"D00", "Possible Points High to Low"},
    {"D01", "To Do Order First to Last"},
    {"D02", "Task Description A to Z"},
    {"D03", "Deadline Now to Later"},
    {"D0A2", "Descending Order", SmartItemType::group},
    {"D10", "Possible Points High to Low"},
    {"D11", "To Do Order First to Last"},
    {"D12", "Task Description A to Z"},
    {"D13", "Importance Low to High"},
    {"D14", "Difficulty Low to High"},
    {"D15", "Time Needed Low to High"},
    {"D16", "Deadline Now to Later"},
    {"D0A3", "Ascending Order", SmartItemType::group},
    {"D30", "Possible Points Low to High"},
    {"D31", "To Do Order Last to First"},
    {"D32", "Task Description Z to A"},
    {"D33", "Importance High to Low"},
    {"D34", "Difficulty High to Low"},
    {"D35", "Time Needed High to Low"},
    {"D36", "Deadline Later to Now"},
    {"D0A4", "Include", SmartItemType::group},
    {completedTasksKey, "Completed Tasks", SmartItemType::checkRow},
}};

template <std::size_t Count>
void addAll(SmartItems& entries, const std::array<Entry, Count>& table) {
  for (const Entry& entry : table) entries.Add(0, entry.key, entry.caption, entry.type);
}

}  // namespace

void makePickerItems(SmartUI& smtSkedPickTasks) {
  SmartItems& items = smtSkedPickTasks.Items();
  items.Add(0, "", "Tasks:", SmartItemType::label);
  items.Add(0, taskPickKey, "Tasks", SmartItemType::dropDown);
  items.Add(0, "", "Sort Order:", SmartItemType::label);
  items.Add(0, sortPickKey, "Sort Order", SmartItemType::dropDown);
}

void setupSkedPickTasksList(SmartUI& smtSkedPickTasks) {
  standardHandler(modules::frmOutWiz, "setupSkedPickTasksList", [&] {
    SmartItems& entries = smtSkedPickTasks.Items().Item(taskPickKey).SubItems();
    entries.Clear();
    addAll(entries, pickEntries);
    for (std::size_t i = 0; i < session().theProjectNames.size(); ++i)
      entries.Add(0, session().theProjectKeys[i], session().theProjectNames[i], SmartItemType::dropDownEntry);
  });
}

void setupSkedPickTasksSort(SmartUI& smtSkedPickTasks) {
  standardHandler(modules::frmOutWiz, "setupSkedPickTasksSort", [&] {
    SmartItems& entries = smtSkedPickTasks.Items().Item(sortPickKey).SubItems();
    if (entries.Count() > 1) return;
    entries.Clear();
    addAll(entries, sortEntries);
  });
}

void putPickerOnStart(SmartUI& smtSkedPickTasks) {
  SmartItems& items = smtSkedPickTasks.Items();
  items.Item(sortPickKey).setValue(sortEntries[0].caption);
  items.Item(taskPickKey).setValue(pickEntries[0].caption);
  items.Item(taskPickKey).setTag(pickEntries[0].key);
  items.Item(sortPickKey).setTag(sortEntries[0].key);
}

}  // namespace tarnel
