#include "DaySchedules.h"
#include "ScheduleRow.h"
#include "StandardHandler.h"

namespace tarnel {
namespace {

constexpr int tarnelIndex = 0;

}  // namespace

void DaySchedules::ctDaySked_AppPreSelect(int index, std::int16_t appIndex) {
  standardHandler(modules::frmOutWiz, "ctDaySked_AppPreSelect", [&] {
    // What belongs to Outlook is on the Tarnel side to be seen, not to be worked on.
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

}  // namespace tarnel
