#include "SelectionQuestion.h"

namespace tarnel {
namespace {

std::string line(std::size_t count, const std::string& kind, const std::string& fate) {
  if (count == 0) return {};
  if (count == 1) return "One " + kind + " Task selected. It will " + fate + ".\r\n\r\n";
  return kind + " Tasks selected: " + std::to_string(count) + " . They will " + fate + ".\r\n\r\n";
}

}  // namespace

OutlookSelection::OutlookSelection(const SmartUI& outlookList) {
  for (const SmartItem& row : outlookList.Items()) {
    if (!row.Checked()) continue;
    if (row.Picture() == rowPicture::outlook) ++outlookTasks;
    if (row.Picture() == rowPicture::tarnel) ++tarnelTasks;
  }
}

std::string OutlookSelection::question(const std::string& outlookFate, const std::string& tarnelFate) const {
  return line(outlookTasks, "Outlook", outlookFate) + line(tarnelTasks, "Tarnel-based", tarnelFate) + "Proceed?";
}

}  // namespace tarnel
