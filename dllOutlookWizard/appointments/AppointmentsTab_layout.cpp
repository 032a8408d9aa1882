#include "AppointmentsTab.h"

namespace tarnel {
namespace {

// Twips.
constexpr float dateHeight = 300;
constexpr float dateLabelWidth = 1380;
constexpr float dateLeft = 1400;
constexpr float besideDate = 1550;
constexpr float offSchedule = 10;

}  // namespace

void AppointmentsTab::layTarnelPane(float width, float height) {
  tarnelCaption_.Move(0, 0, width, bandHeight);
  dateLabel_.Move(0, tarnelCaption_.Height(), dateLabelWidth, dateHeight);
  tarnelActions_.Move(0, height - bandHeight, width, bandHeight);
  ctDeadline_.Move(dateLeft, dateLabel_.Top(), width - besideDate, dateHeight);
  schedules.tarnelSide.Move(0, tarnelCaption_.Height() + dateLabel_.Height(), width - offSchedule,
                            height - (bandHeight + tarnelCaption_.Height() + bandHeight));
}

void AppointmentsTab::layOutlookPane(float width, float height) {
  outlookCaption_.Move(0, 0, width, bandHeight);
  smtTimebarSizer_.Move(0, outlookCaption_.Height(), width, bandHeight);
  outlookActions_.Move(0, height - bandHeight, width, bandHeight);
  schedules.outlookSide.Move(0, smtTimebarSizer_.Height() + outlookCaption_.Height(), width - offSchedule,
                             height - (outlookActions_.Height() + bandHeight + bandHeight));
}

}  // namespace tarnel
