#include "TasksTab.h"

namespace tarnel {
namespace {

constexpr float pickerHeight = 1350;  // twips

}  // namespace

void TasksTab::layTarnelPane(float width, float height) {
  SmartUI& picker = lists.smtSkedPickTasks;
  tarnelCaption_.Move(0, 0, width, bandHeight);
  picker.Move(0, tarnelCaption_.Height(), width, pickerHeight);
  tarnelActions_.Move(0, height - bandHeight, width, bandHeight);
  lists.tarnelList.Move(0, picker.Height() + picker.Top(), width,
                        height - (tarnelActions_.Height() + picker.Height() + tarnelCaption_.Height()));
}

void TasksTab::layOutlookPane(float width, float height) {
  outlookCaption_.Move(0, 0, width, bandHeight);
  outlookActions_.Move(0, height - bandHeight, width, bandHeight);
  lists.outlookList.Move(0, outlookCaption_.Height(), width,
                         height - (outlookActions_.Height() + outlookCaption_.Height()));
}

}  // namespace tarnel
