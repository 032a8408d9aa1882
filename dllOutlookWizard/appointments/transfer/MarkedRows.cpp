#include "MarkedRows.h"

#include "Conversions.h"
#include "Platform.h"
#include "ScheduleRow.h"

namespace tarnel {

namespace {

bool isToBeDealtWith(const ctMDay& schedule, std::int16_t index) {
  if (!isMarked(schedule, index)) return false;
  // A Task Appointment at the midnight after the day belongs to the day's list.
  if (schedule.AppTag(index) == schedule.appointment(index).key) return true;
  const ctMDay::Appointment& row = schedule.appointment(index);
  const std::int32_t day = roundToLong(schedule.ShowDate().days);
  return row.firstDay <= day && day <= row.lastDay;
}

}  // namespace

MarkedRows::MarkedRows(const ctMDay& schedule) {
  for (std::int16_t i = 1; i <= schedule.AppCount(); ++i) {
    if (!isToBeDealtWith(schedule, i)) continue;
    if (schedule.AppOwnerImage(i) == apptPicture::outlook) ++outlookCount;
    if (schedule.AppOwnerImage(i) == apptPicture::tarnel) ++taskCount;
  }
}

void forEachMarkedRow(const ctMDay& schedule, const std::function<void(std::int16_t index)>& act) {
  const int rows = schedule.AppCount();
  for (std::int16_t i = schedule.AppCount(); i >= 1; --i) {
    // What ran inside `act` may have taken rows away.
    if (i <= schedule.AppCount() && isToBeDealtWith(schedule, i)) act(i);
    platform().desktop.progress(rows - i + 1, rows);
  }
}

void removeRow(ctMDay& schedule, std::int16_t index, const std::string& tag) {
  if (index <= schedule.AppCount() && schedule.AppTag(index) == tag) schedule.AppRemove(index);
}

}  // namespace tarnel
