#pragma once

#include <cstdint>

#include "Date.h"

namespace tarnel {

namespace outlook {
class AppointmentItem;
}

// Where an appointment is on a schedule: minutes from midnight and a whole day number, as ctMDay takes them.
struct RowTimes {
  std::int16_t start = 0;
  std::int16_t end = 0;
  std::int32_t date = 0;
  std::int32_t firstDay = 0;  // the days that it touches, both included
  std::int32_t lastDay = 0;

  friend bool operator==(const RowTimes&, const RowTimes&) = default;
};

// Start and end each count from the midnight of their own day; the date is the end's. So what ends at midnight is
// with the end minute 0 on the next day, which it does not touch. What ends before its start touches the start's alone.
RowTimes rowTimes(Date start, Date end);

// The same for an item of Outlook, but one that starts at midnight fills the day of its start, whenever it ends.
RowTimes rowTimes(const outlook::AppointmentItem& item);

}  // namespace tarnel
