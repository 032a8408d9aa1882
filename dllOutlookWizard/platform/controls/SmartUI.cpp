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
    case ItemType::checkRow:
    case ItemType::checkBox:
      item.setChecked(!item.Checked());
      break;
    case ItemType::option:
    case ItemType::toggleButton:
      item.setChecked(true);
      break;
    case ItemType::button:
    case ItemType::menu:
    case ItemType::menuEntry:
      break;
    case ItemType::label:
    case ItemType::group:
    case ItemType::note:
    case ItemType::separator:
    case ItemType::dropDown:
    case ItemType::dropDownEntry:
      return;
  }
  Click(item);
}

void SmartUI::choose(SmartItem& dropDown, SmartItem& entry) {
  if (!Visible() || !Enabled() || !dropDown.Visible() || !entry.Visible()) return;
  if (entry.Type() == ItemType::group || entry.Type() == ItemType::separator) return;
  const Variant before = dropDown.Value();
  const bool lasting = entry.Type() != ItemType::checkRow;
  if (before == Variant(entry.Caption()))
    Change(dropDown, "Value");  // shown is not chosen: the user's act counts all the same
  else
    dropDown.setValue(entry.Caption());
  if (!lasting) dropDown.putValue(before);
}

}  // namespace tarnel
