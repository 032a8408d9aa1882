#pragma once

#include <QRect>
#include <vector>

#include "ctMDay.h"

namespace tarnel::qt {

// Where the appointments of the day shown are, in pixels from the top of the first row and from the left edge of the
// room beside the times. Those that overlap share the room's width; where they are too many to be read side by side
// they lie over one another like a hand of cards, the last one on top.
class ScheduleLayout {
 public:
  static constexpr int rowHeight = 20;
  static constexpr int bandRowHeight = 20;
  static constexpr int minutesOfDay = 1440;
  static constexpr int lowestBox = 17;  // as low as a line of text needs

  struct Box {
    std::int16_t index = 0;  // of the appointment
    QRect place;             // of one that lasts the whole day: in the band above the rows
    bool inBand = false;
    bool startsBefore = false;  // the day shown
    bool endsLater = false;
  };

  ScheduleLayout() = default;
  ScheduleLayout(const ctMDay& schedule, int width);

  // Those of the band first, then by start: the order in which keys walk them and in which they are drawn.
  const std::vector<Box>& boxes() const { return boxes_; }
  // Of the day, but outside the hours shown.
  int before() const { return before_; }
  int after() const { return after_; }
  int rows() const { return rows_; }
  int height() const { return rows_ * rowHeight; }
  int bandHeight() const { return bandRows_ * bandRowHeight; }
  // Where a minute of the day is; may lie outside the rows.
  int at(int minute) const { return (minute - dayStart_) * rowHeight / minutesPerRow_; }
  int minuteAt(int y) const { return dayStart_ + y * minutesPerRow_ / rowHeight; }
  // The minute at which a row starts.
  int minuteOf(int row) const { return dayStart_ + row * minutesPerRow_; }
  int minutesPerRow() const { return minutesPerRow_; }
  // Whether a row is the first one, or the first of its hour: a day may start at any minute.
  bool startsHour(int row) const { return row == 0 || minuteOf(row) / 60 != minuteOf(row - 1) / 60; }

 private:
  void placeBand(int width);
  void placeTimed(Box box, int from, int to);
  void shareWidth(int width);
  void shareWidth(std::size_t first, std::size_t end, int width);

  std::vector<Box> boxes_;
  int dayStart_ = 0;
  int minutesPerRow_ = 60;
  int rows_ = 0;
  int bandRows_ = 0;
  int before_ = 0;
  int after_ = 0;
};

}  // namespace tarnel::qt
