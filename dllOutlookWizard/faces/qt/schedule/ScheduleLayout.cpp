#include "ScheduleLayout.h"

#include <algorithm>

namespace tarnel::qt {
namespace {

constexpr int cardGap = 2;
constexpr int mostBandRows = 3;
// Side by side boxes are at least so wide; one of a hand of cards has room for its pictures and two words.
constexpr int narrowestColumn = 48;
constexpr int card = 96;
constexpr int cardStep = 4;  // at least so much of each card's edge is seen, or nothing

// An appointment on the day shown, in minutes of that day.
struct Stretch {
  Stretch(const ctMDay::Appointment& appointment, std::int32_t day)
      : startsBefore(appointment.firstDay < day),
        endsLater(appointment.lastDay > day),
        from(startsBefore ? 0 : appointment.start),
        to(endsLater || (appointment.end == 0 && appointment.date == day + 1) ? ScheduleLayout::minutesOfDay
                                                                              : appointment.end),
        isOn(appointment.firstDay <= day && day <= appointment.lastDay) {
    // The day's list takes in what starts at the midnight that ends it: it is shown below the last hour.
    if (appointment.firstDay == day + 1 && appointment.start == 0) {
      from = to = ScheduleLayout::minutesOfDay;
      isOn = endsLater = true;
    }
    wholeDay = appointment.allDay || (from <= 0 && to >= ScheduleLayout::minutesOfDay);
  }

  bool startsBefore;
  bool endsLater;
  int from;
  int to;
  bool isOn;
  bool wholeDay;
};

void spread(QRect& place, int column, int columns, int width) {
  const int wide = std::min(card, width);
  if (width / columns >= narrowestColumn || columns == 1) {
    place.setLeft(column * width / columns + cardGap);
    place.setRight((column + 1) * width / columns - cardGap);
  } else {
    const int left = column * (width - wide) / (columns - 1);
    place.setLeft(left - left % cardStep + cardGap);
    place.setWidth(wide - 2 * cardGap);
  }
}

}  // namespace

ScheduleLayout::ScheduleLayout(const ctMDay& schedule, int width)
    : dayStart_(schedule.DayStart()), minutesPerRow_(schedule.minutesPerRow()) {
  // A whole day is asked for by its last minute, which belongs to it; other hours by the minute that ends them.
  const int dayEnd =
      schedule.DayEnd() == ScheduleLayout::minutesOfDay - 1 ? ScheduleLayout::minutesOfDay : schedule.DayEnd();
  const int minutes = std::max(dayEnd - dayStart_, 1);
  rows_ = (minutes + minutesPerRow_ - 1) / minutesPerRow_;
  const auto day = static_cast<std::int32_t>(schedule.ShowDate().days);
  std::vector<std::pair<std::int16_t, Stretch>> timed;
  for (std::int16_t i = 1; i <= schedule.AppCount(); ++i) {
    const Stretch stretch(schedule.appointment(i), day);
    if (!stretch.isOn) continue;
    if (stretch.wholeDay)
      boxes_.push_back({i, {}, true, stretch.startsBefore, stretch.endsLater});
    else
      timed.emplace_back(i, stretch);
  }
  placeBand(width);
  for (const auto& [index, stretch] : timed)
    placeTimed({index, {}, false, stretch.startsBefore, stretch.endsLater}, stretch.from, stretch.to);
  shareWidth(width);
}

void ScheduleLayout::placeBand(int width) {
  const int count = static_cast<int>(boxes_.size());
  bandRows_ = std::min(count, mostBandRows);
  for (int i = 0; i < count; ++i) {
    QRect& place = boxes_[static_cast<std::size_t>(i)].place;
    place = QRect(0, i % bandRows_ * bandRowHeight + 1, width, bandRowHeight - 2);
    spread(place, i / bandRows_, (count + bandRows_ - 1) / bandRows_, width);
  }
}

void ScheduleLayout::placeTimed(Box box, int from, int to) {
  const int end = std::max(to, from);
  if (end < dayStart_ || (end == dayStart_ && end > from)) {
    ++before_;
    return;
  }
  if (at(from) >= height() && !(from == ScheduleLayout::minutesOfDay && at(ScheduleLayout::minutesOfDay) <= height())) {
    ++after_;
    return;
  }
  const int top = std::clamp(at(from), 0, height() - lowestBox);
  const int bottom = std::min(at(end), height());
  box.place = QRect(0, top, 0, std::max(bottom - top - 1, lowestBox));
  boxes_.push_back(box);
}

void ScheduleLayout::shareWidth(int width) {
  const auto begin = std::ranges::find(boxes_, false, &Box::inBand);
  std::ranges::stable_sort(begin, boxes_.end(), {}, [](const Box& box) { return box.place.top(); });
  auto start = static_cast<std::size_t>(begin - boxes_.begin());
  int bottom = -1;
  for (std::size_t i = start; i < boxes_.size(); ++i) {
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
  for (std::size_t i = first; i < end; ++i)
    spread(boxes_[i].place, columns[i - first], static_cast<int>(bottoms.size()), width);
}

}  // namespace tarnel::qt
