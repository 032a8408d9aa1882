#include "TimeBar.h"

#include <algorithm>

#include "StandardHandler.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

struct Bounds {
  std::int32_t start;
  std::int32_t end;
};

constexpr std::int32_t lastMinute = 1439;

Bounds wholeDay() { return {0, lastMinute}; }
Bounds workingDay() { return {session().theWorkDayStart, session().theWorkDayEnd}; }

struct Range {
  const char* key;
  const char* caption;
  const char* toolTip;
  Bounds (*bounds)();

  void apply(ctMDay& schedule) const {
    const Bounds minutes = bounds();
    schedule.setDayStart(minutes.start);
    schedule.setDayEnd(minutes.end);
  }
};

constexpr std::array<Range, 2> ranges{{
    {"ALL", "24", "Show 24-hour days", wholeDay},
    {"DAY", "D", "Show your Working Day", workingDay},
}};

// The schedules know five lengths of their own, by number, and take any other in minutes.
enum class Scale : std::int32_t { own = 0, custom = 1 };

struct Interval {
  const char* key;
  const char* caption;
  const char* toolTip;
  Scale scale;
  std::int32_t value;

  void apply(ctMDay& schedule) const {
    schedule.setUseCustomScale(static_cast<std::int32_t>(scale));
    scale == Scale::custom ? schedule.setCustomScale(value) : schedule.setTimeScale(value);
  }
};

constexpr std::array<Interval, 7> intervals{{
    {"M60", "60", "60-minute intervals", Scale::own, 4},
    {"M30", "30", "30-minute intervals", Scale::own, 3},
    {"M20", "20", "20-minute intervals", Scale::custom, 20},
    {"M15", "15", "15-minute intervals", Scale::own, 2},
    {"M10", "10", "10-minute intervals", Scale::own, 1},
    {"M5", "5", "5-minute intervals", Scale::own, 0},
    {"M1", "1", "1-minute intervals", Scale::custom, 1},
}};

template <class Choice, std::size_t Count>
const Choice* find(const std::array<Choice, Count>& group, const std::string& key) {
  const auto found = std::find_if(group.begin(), group.end(), [&](const Choice& choice) { return key == choice.key; });
  return found == group.end() ? nullptr : &*found;
}

template <class Choice, std::size_t Count>
void addGroup(SmartItems& items, const std::array<Choice, Count>& group) {
  for (const Choice& choice : group)
    items.Add(0, choice.key, choice.caption, SmartItemType::toggleButton).setToolTipText(choice.toolTip);
}

// The one choice of its group, in the bar and on both schedules.
template <class Choice, std::size_t Count>
void choose(SmartItems& items, const std::array<Choice, Count>& group, const Choice& chosen, DaySchedules& schedules) {
  for (const Choice& choice : group) items.Item(choice.key).setChecked(&choice == &chosen);
  for (ctMDay* schedule : schedules.both()) chosen.apply(*schedule);
}

void redraw(DaySchedules& schedules) {
  for (ctMDay* schedule : schedules.both()) schedule->Redraw(true);
}

}  // namespace

void makeTimeBarItems(SmartUI& smtTimebarSizer) {
  SmartItems& items = smtTimebarSizer.Items();
  items.Add(0, "", "Show:", SmartItemType::label);
  addGroup(items, ranges);
  items.Add(0, "", "", SmartItemType::separator);
  addGroup(items, intervals);
}

void SetCals(SmartUI& smtTimebarSizer, DaySchedules& schedules) {
  standardHandler(modules::frmOutWiz, "SetCals", [&] {
    const Range* range = find(ranges, session().theTimeDisplay1);
    const Interval* interval = find(intervals, session().theTimeDisplay2);
    choose(smtTimebarSizer.Items(), ranges, range ? *range : ranges.front(), schedules);
    choose(smtTimebarSizer.Items(), intervals, interval ? *interval : intervals.front(), schedules);
    redraw(schedules);
  });
}

void smtTimebarSizer_Click(SmartUI& smtTimebarSizer, DaySchedules& schedules, SmartItem& item) {
  standardHandler(modules::frmOutWiz, "smtTimebarSizer_Click", [&] {
    if (const Range* range = find(ranges, item.Key())) choose(smtTimebarSizer.Items(), ranges, *range, schedules);
    if (const Interval* interval = find(intervals, item.Key()))
      choose(smtTimebarSizer.Items(), intervals, *interval, schedules);
    redraw(schedules);
  });
}

}  // namespace tarnel
