#include "ScheduleLayout.h"

#include <algorithm>

namespace tarnel::qt {
namespace {

constexpr int gap = 2;

bool isOnTheDay(const ctMDay& schedule, const ctMDay::Appointment& appointment) {
  return appointment.date == static_cast<std::int32_t>(schedule.ShowDate().days);
}

}  // namespace

ScheduleLayout::ScheduleLayout(const ctMDay& schedule, int width)
    : dayStart_(schedule.DayStart()), minutesPerRow_(schedule.minutesPerRow()) {
  const int minutes = std::max(schedule.DayEnd() - dayStart_, 1);
  rows_ = (minutes + minutesPerRow_ - 1) / minutesPerRow_;
  placeAllDays(schedule, width);
  placeTimed(schedule, width);
}

void ScheduleLayout::placeAllDays(const ctMDay& schedule, int width) {
  for (std::int16_t i = 1; i <= schedule.AppCount(); ++i) {
    const ctMDay::Appointment& appointment = schedule.appointment(i);
    if (!appointment.allDay || !isOnTheDay(schedule, appointment)) continue;
    boxes_.push_back({i, QRect(gap, allDays_ * allDayHeight + 1, width - 2 * gap, allDayHeight - 2), true});
    ++allDays_;
  }
}

void ScheduleLayout::placeTimed(const ctMDay& schedule, int width) {
  const std::size_t first = boxes_.size();
  for (std::int16_t i = 1; i <= schedule.AppCount(); ++i) {
    const ctMDay::Appointment& appointment = schedule.appointment(i);
    if (appointment.allDay || !isOnTheDay(schedule, appointment)) continue;
    const int top = std::max(at(appointment.start), 0);
    const int bottom = std::min(at(std::max(appointment.end, appointment.start)), height());
    if (at(appointment.start) >= height() || at(appointment.end) < 0 ||
        (bottom == 0 && appointment.end > appointment.start))
      continue;  // outside the hours shown
    boxes_.push_back({i, QRect(0, top, width, std::max(bottom - top - 1, lowestBox)), false});
  }
  const auto begin = boxes_.begin() + static_cast<std::ptrdiff_t>(first);
  std::ranges::stable_sort(begin, boxes_.end(), {}, [](const Box& box) { return box.place.top(); });
  std::size_t start = first;
  int bottom = -1;
  for (std::size_t i = first; i < boxes_.size(); ++i) {
    if (boxes_[i].place.top() > bottom) {
      shareWidth(start, i, width);
      start = i;
    }
    bottom = std::max(bottom, boxes_[i].place.bottom());
  }
  shareWidth(start, boxes_.size(), width);
}

// Boxes `first` up to `end` hang together: each goes to the first column that is free again.
void ScheduleLayout::shareWidth(std::size_t first, std::size_t end, int width) {
  std::vector<int> bottoms;  // of the last box of each column
  std::vector<int> columns;
  for (std::size_t i = first; i < end; ++i) {
    const auto free = std::ranges::find_if(bottoms, [&](int bottom) { return bottom < boxes_[i].place.top(); });
    columns.push_back(static_cast<int>(free - bottoms.begin()));
    if (free == bottoms.end())
      bottoms.push_back(boxes_[i].place.bottom());
    else
      *free = boxes_[i].place.bottom();
  }
  const int count = std::max(static_cast<int>(bottoms.size()), 1);
  for (std::size_t i = first; i < end; ++i) {
    const int column = columns[i - first];
    boxes_[i].place.setLeft(column * width / count + gap);
    boxes_[i].place.setRight((column + 1) * width / count - gap);
  }
}

}  // namespace tarnel::qt
