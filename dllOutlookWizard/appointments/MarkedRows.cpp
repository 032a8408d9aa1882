#include "MarkedRows.h"

#include "Platform.h"
#include "ScheduleRow.h"

namespace tarnel {

bool isMarked(const ctMDay& schedule, std::int16_t index) { return schedule.AppMarkImage(index) == apptPicture::check; }

MarkedRows::MarkedRows(const ctMDay& schedule) {
  for (std::int16_t i = 1; i <= schedule.AppCount(); ++i) {
    if (!isMarked(schedule, i)) continue;
    if (schedule.AppOwnerImage(i) == apptPicture::outlook) ++outlookCount;
    if (schedule.AppOwnerImage(i) == apptPicture::tarnel) ++taskCount;
  }
}

void forEachMarkedRow(const ctMDay& schedule, const std::function<void(std::int16_t index)>& act) {
  const int rows = schedule.AppCount();
  for (std::int16_t i = schedule.AppCount(); i >= 1; --i) {
    // What ran inside `act` may have taken rows away.
    if (i <= schedule.AppCount() && isMarked(schedule, i)) act(i);
    platform().desktop.progress(rows - i + 1, rows);
  }
}

void removeRow(ctMDay& schedule, std::int16_t index, const std::string& tag) {
  if (index <= schedule.AppCount() && schedule.AppTag(index) == tag) schedule.AppRemove(index);
}

}  // namespace tarnel
