#include "StandardHandler.h"
#include "TasksTab.h"

namespace tarnel {
namespace {

// Twips.
constexpr float bandHeight = 330;
constexpr float pickerHeight = 1350;

}  // namespace

void TasksTab::layTarnelPane() {
  standardHandler(modules::frmOutWiz, "SSResizer1_ResizeComplete", [this] {
    const float width = tarnelPane_.Width();
    const float height = tarnelPane_.Height();
    SmartUI& picker = lists.smtSkedPickTasks;
    tarnelCaption_.Move(0, 0, width, bandHeight);
    picker.Move(0, tarnelCaption_.Height(), width, pickerHeight);
    tarnelActions_.Move(0, height - bandHeight, width, bandHeight);
    lists.tarnelList.Move(0, picker.Height() + picker.Top(), width,
                          height - (tarnelActions_.Height() + picker.Height() + tarnelCaption_.Height()));
  });
}

void TasksTab::layOutlookPane() {
  standardHandler(modules::frmOutWiz, "SSResizer1_ResizeComplete", [this] {
    const float width = outlookPane_.Width();
    const float height = outlookPane_.Height();
    outlookCaption_.Move(0, 0, width, bandHeight);
    outlookActions_.Move(0, height - bandHeight, width, bandHeight);
    lists.outlookList.Move(0, outlookCaption_.Height(), width,
                           height - (outlookActions_.Height() + outlookCaption_.Height()));
  });
}

}  // namespace tarnel
