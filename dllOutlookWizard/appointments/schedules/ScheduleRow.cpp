#include "ScheduleRow.h"

#include "Conversions.h"
#include "Explained.h"
#include "m_OutlookWizard.h"

namespace tarnel {

std::int16_t addRow(ctMDay& schedule, const ScheduleRow& row) {
  const std::int16_t index = schedule.AppAdd(row.times.start, row.times.end, row.times.date, row.text, row.key);
  schedule.setAppDays(index, row.times.firstDay, row.times.lastDay);
  if (row.color) schedule.setAppColor(index, *row.color);
  schedule.setAppOwnerImage(index, row.ownerImage);
  schedule.setAppTag(index, row.tag);
  schedule.setAppState(index, apptState::added);
  schedule.setAppAllDay(index, row.allDay);
  schedule.setAppFlagA(index, true);
  schedule.setAppFlagB(index, true);
  return index;
}

bool isMarked(const ctMDay& schedule, std::int16_t index) { return schedule.AppMarkImage(index) == apptPicture::check; }

void tellRowsLeftOut(std::int32_t count) {
  if (count == 0) return;
  tellUser("This day has more appointments than can be shown. Shown are the first " +
           std::to_string(ctMDay::mostAppointments) + ", left out: " + std::to_string(count) + ".");
}

Color taskApptColor() {
  const std::string& setting = session().theDateFormats[dateFormat::apptColor];
  return explained(
      "the setting ApptColor holds \"" + setting + "\", which is no colour. Choose the colour of appointments again.",
      [&] { return toLong(setting); });
}

}  // namespace tarnel
