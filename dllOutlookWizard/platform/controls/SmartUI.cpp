#include "SmartUI.h"

#include "Failure.h"

namespace tarnel {

SmartItem& SmartUI::LastItem() {
  if (!lastItem_) failObjectNotSet();
  return *lastItem_;
}

void SmartUI::press(SmartItem& item) {
  if (!Visible() || !Enabled() || !item.Visible()) return;
  switch (item.Type()) {
    case SmartItemType::checkRow:
    case SmartItemType::checkBox:
      item.setChecked(!item.Checked());
      break;
    case SmartItemType::option:
    case SmartItemType::toggleButton:
      item.setChecked(true);
      break;
    case SmartItemType::button:
    case SmartItemType::menu:
    case SmartItemType::menuEntry:
      break;
    case SmartItemType::label:
    case SmartItemType::group:
    case SmartItemType::note:
    case SmartItemType::separator:
    case SmartItemType::dropDown:
    case SmartItemType::dropDownEntry:
      return;
  }
  Click(item);
}

void SmartUI::choose(SmartItem& dropDown, SmartItem& entry) {
  if (!Visible() || !Enabled() || !dropDown.Visible() || !entry.Visible()) return;
  if (entry.Type() == SmartItemType::group || entry.Type() == SmartItemType::separator) return;
  const Variant before = dropDown.Value();
  const bool lasting = entry.Type() != SmartItemType::checkRow;
  if (before == Variant(entry.Caption()))
    Change(dropDown, "Value");  // shown is not chosen: the user's act counts all the same
  else
    dropDown.setValue(entry.Caption());
  if (!lasting) dropDown.putValue(before);
}

}  // namespace tarnel
