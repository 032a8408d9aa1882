#include "AppointmentsTab.h"
#include "ApptTransfer.h"
#include "ScheduleRow.h"
#include "StandardHandler.h"

namespace tarnel {

void AppointmentsTab::smtApptActions_Click(int index, const SmartItem& item) {
  standardHandler(modules::frmOutWiz, "smtApptActions_Click", [&] {
    const bool tarnelSide = index == 0;
    const std::string& key = item.Key();
    if (key == "ALL") tarnelSide ? MarkAllTarnelAppts() : MarkAllOutlookAppts();
    if (key == "NONE") tarnelSide ? UNMarkAllTarnelAppts() : UNMarkAllOutlookAppts();
    if (key == "DELETE") tarnelSide ? DeleteTarnelAppts(schedules) : DeleteOutlookAppts(schedules);
    if (key == "UPDATE") Tarnel2OUTAppts(schedules);  // from either side the marks of the Tarnel side
  });
}

bool AppointmentsTab::MarkAllTarnelAppts() { return markAll("MarkAllTarnelAppts", schedules.tarnelSide, true); }
bool AppointmentsTab::UNMarkAllTarnelAppts() { return markAll("UNMarkAllTarnelAppts", schedules.tarnelSide, false); }
bool AppointmentsTab::MarkAllOutlookAppts() { return markAll("MarkAllOutlookAppts", schedules.outlookSide, true); }
bool AppointmentsTab::UNMarkAllOutlookAppts() { return markAll("UNMarkAllOutlookAppts", schedules.outlookSide, false); }

bool AppointmentsTab::markAll(std::string_view procedure, ctMDay& schedule, bool marked) {
  return standardHandler<bool>(modules::frmOutWiz, procedure, [&](bool& done) {
    for (std::int16_t i = schedule.AppCount(); i >= 1; --i) {
      if (&schedule == &schedules.tarnelSide && schedule.AppOwnerImage(i) == apptPicture::outlook) continue;
      schedule.setAppMarkImage(i, marked ? apptPicture::check : apptPicture::none);
    }
    done = true;
  });
}

}  // namespace tarnel
