#pragma once

#include <vector>

namespace tarnel::qt {

class DayScheduleView;

// The schedules of one window, which scroll together and keep their rows level. Each is in it while it lives.
struct ScheduleGroup {
  std::vector<DayScheduleView*> views;
};

}  // namespace tarnel::qt
