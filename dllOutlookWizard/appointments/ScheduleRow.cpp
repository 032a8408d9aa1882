#include "ScheduleRow.h"

#include "Conversions.h"
#include "Failure.h"
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

Color taskApptColor() {
  const std::string& setting = session().theDateFormats[dateFormat::apptColor];
  try {
    return toLong(setting);
  } catch (const Failure& failure) {
    throw Failure(failure.number(), failure.description() + ": the setting ApptColor holds \"" + setting +
                                        "\", which is no colour. Choose the colour of appointments anew.");
  }
}

}  // namespace tarnel
