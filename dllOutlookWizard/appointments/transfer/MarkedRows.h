#pragma once

#include <cstdint>
#include <functional>

#include "ctMDay.h"

namespace tarnel {

// The marked rows by whose they are. Here as below, a row of Outlook's side counts only if it touches the day shown:
// where Outlook was out of reach when the date changed, the rows of the day before are still there, unseen.
struct MarkedRows {
  explicit MarkedRows(const ctMDay& schedule);

  int outlookCount = 0;
  int taskCount = 0;
};

// Calls back for each marked row from the last one up, so that `act` may remove its row, and shows how far the run is.
void forEachMarkedRow(const ctMDay& schedule, const std::function<void(std::int16_t index)>& act);

// Removes the row if it still bears the tag: events that ran meanwhile may have filled the schedule again.
void removeRow(ctMDay& schedule, std::int16_t index, const std::string& tag);

}  // namespace tarnel
