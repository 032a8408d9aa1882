#include "DaySchedules.h"
#include "MarkedRows.h"
#include "ScheduleRow.h"
#include "StandardHandler.h"

namespace tarnel {
namespace {

constexpr int tarnelIndex = 0;

}  // namespace

void DaySchedules::ctDaySked_AppPreSelect(int index, std::int16_t appIndex) {
  standardHandler(modules::frmOutWiz, "ctDaySked_AppPreSelect", [&] {
    // What belongs to Outlook stands on the Tarnel side to be seen, not to be worked on.
    if (index == tarnelIndex && tarnelSide.AppOwnerImage(appIndex) == apptPicture::outlook) tarnelSide.AppDeselect();
  });
}

void DaySchedules::ctDaySked_AppSelect(int index, std::int16_t appIndex) {
  standardHandler(modules::frmOutWiz, "ctDaySked_AppSelect", [&] {
    ctMDay& schedule = index == tarnelIndex ? tarnelSide : outlookSide;
    const bool marked = isMarked(schedule, appIndex);
    schedule.setAppMarkImage(appIndex, marked ? apptPicture::none : apptPicture::check);
    schedule.setAppState(appIndex, marked ? apptState::unmarked : apptState::marked);
  });
}

bool DaySchedules::MarkAllTarnelAppts() { return setMarks("MarkAllTarnelAppts", tarnelSide, apptPicture::check); }
bool DaySchedules::UNMarkAllTarnelAppts() { return setMarks("UNMarkAllTarnelAppts", tarnelSide, apptPicture::none); }
bool DaySchedules::MarkAllOutlookAppts() { return setMarks("MarkAllOutlookAppts", outlookSide, apptPicture::check); }
bool DaySchedules::UNMarkAllOutlookAppts() { return setMarks("UNMarkAllOutlookAppts", outlookSide, apptPicture::none); }

bool DaySchedules::setMarks(std::string_view procedure, ctMDay& schedule, std::int16_t markImage) {
  return standardHandler<bool>(modules::frmOutWiz, procedure, [&](bool& done) {
    for (std::int16_t i = schedule.AppCount(); i >= 1; --i) {
      if (&schedule == &tarnelSide && schedule.AppOwnerImage(i) == apptPicture::outlook) continue;
      schedule.setAppMarkImage(i, markImage);
    }
    done = true;
  });
}

}  // namespace tarnel
