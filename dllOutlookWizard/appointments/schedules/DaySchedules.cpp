#include "DaySchedules.h"

namespace tarnel {

DaySchedules::DaySchedules(FormState& form) : tarnelSide("ctDaySked", 0), outlookSide("ctDaySked", 1), form_(form) {
  for (int index = 0; index < 2; ++index) {
    ctMDay& schedule = *both()[static_cast<std::size_t>(index)];
    connections_.push_back(schedule.AppPreSelect.connect(
        [this, index](std::int16_t appIndex) { ctDaySked_AppPreSelect(index, appIndex); }));
    connections_.push_back(
        schedule.AppSelect.connect([this, index](std::int16_t appIndex) { ctDaySked_AppSelect(index, appIndex); }));
  }
}

void DaySchedules::showFormDate() {
  for (ctMDay* schedule : both()) schedule->setShowDate(form_.formCurDate);
}

void DaySchedules::refreshDay() {
  GetAppts("CURRENTDATE", false);
  DisplayTaskAppts();
  GetDisplayOutlookAppts(tarnelSide, form_.formCurDate, form_.formCurDate);
}

void DaySchedules::closeRows() {
  if (!theTaskApptRows) return;
  closeIfOpen(*theTaskApptRows);
  theTaskApptRows.reset();
  theTaskApptData.reset();
}

}  // namespace tarnel
