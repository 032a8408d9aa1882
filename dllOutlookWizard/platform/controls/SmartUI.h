#pragma once

#include <string>

#include "Control.h"
#include "SmartItems.h"

namespace tarnel {

// A bar or list of items: check list, row of buttons, drop-downs with their labels, settings with their notes.
class SmartUI : public Control, private ItemsControl {
 public:
  enum class Look { checkList, bar, form };

  SmartUI(std::string name, Look look, std::string title = {}) : SmartUI(std::move(name), {}, look, std::move(title)) {}
  SmartUI(std::string name, std::optional<int> index, Look look, std::string title = {})
      : Control(std::move(name), index), look_(look), title_(std::move(title)), items_(*this) {}

  Look look() const { return look_; }
  // Shown above the items; empty for none.
  const std::string& title() const { return title_; }

  SmartItems& Items() { return items_; }
  const SmartItems& Items() const { return items_; }
  // The item added last, to Items or to the SubItems of one of them. Failure 91 before the first one, and after each
  // Clear or Remove until the next.
  SmartItem& LastItem();

  // What a user does. Nothing happens on what can't be seen or pressed.
  // Presses a button, menu entry or toggle; toggles a check row or box; checks an option. Raises Click after that.
  void press(SmartItem& item);
  // Chooses an entry of a drop-down: its caption becomes the Value. Raises Change, also where it was shown before. A
  // check entry is no lasting choice: after the Change the Value is what it was before.
  void choose(SmartItem& dropDown, SmartItem& entry);

  // Scrolls a list to its first row.
  void resetDisplayPosition() { displayPositionReset(); }
  // Draws again.
  void Refresh() { refreshed(); }

  Signal<SmartItem&> Click;
  // The item and which of its properties, "Value" or "Checked", changed, by the user or by code.
  Signal<SmartItem&, const std::string&> Change;
  Signal<> displayPositionReset;
  Signal<> refreshed;

 private:
  void itemAdded(SmartItem& item) override { lastItem_ = &item; }
  void itemsGo() override { lastItem_ = nullptr; }
  void itemChanged(SmartItem& item, const std::string& property) override { Change(item, property); }

  Look look_;
  std::string title_;
  SmartItem* lastItem_ = nullptr;
  SmartItems items_;
};

}  // namespace tarnel
