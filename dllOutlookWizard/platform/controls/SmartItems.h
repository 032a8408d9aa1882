#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Color.h"
#include "ItemKeys.h"
#include "Signal.h"
#include "Variant.h"

namespace tarnel {

class SmartItem;
class SmartItems;
class SmartUI;

// What an item is and how it behaves. The numbers 103, 105, 200, 501, 505, 901, 1104 and 1500 are the control's own,
// which its users compare with; the others are ours.
enum class SmartItemType : std::int32_t {
  button = 100,         // pressed, does something
  label = 102,          // a text that can't be pressed
  group = 103,          // a heading: what follows belongs to it
  menu = 105,           // a button that opens its SubItems
  menuEntry = 200,      // pressed in an open menu
  checkBox = 501,       // toggles
  option = 502,         // one of its group is checked
  toggleButton = 503,   // a button that stays down
  checkRow = 505,       // a row of a check list, or a check entry of a drop-down
  dropDownEntry = 901,  // can be chosen
  note = 902,           // a paragraph: its Caption leads, its Value follows
  separator = 1104,     // a gap or line between others
  dropDown = 1500,      // Value is the caption of one of its SubItems
};

// The control that items belong to, as they see it. Items of a drop-down item tell it the same as those beside it.
class ItemsControl {
 public:
  virtual ~ItemsControl() = default;
  virtual void itemAdded(SmartItem& item) = 0;
  // Some of them will be gone in a moment.
  virtual void itemsGo() = 0;
  // `property` is "Value" or "Checked".
  virtual void itemChanged(SmartItem& item, const std::string& property) = 0;
};

// One item of a SmartUI. Belongs to its collection and goes with it.
class SmartItem {
 public:
  enum class Property { caption, value, checked, visible, picture, tag, toolTipText, highlighted, backColor, bold };

  SmartItem(SmartItems& owner, std::string key, std::string caption, SmartItemType type, std::string picture);
  ~SmartItem();
  SmartItem(const SmartItem&) = delete;
  SmartItem& operator=(const SmartItem&) = delete;

  const std::string& Key() const { return key_; }
  SmartItemType Type() const { return type_; }
  // Place in its collection, from 0.
  std::size_t Index() const { return index_; }

  const std::string& Caption() const { return caption_; }
  void setCaption(std::string caption);
  // Raises the control's Change when the value is another one.
  const Variant& Value() const { return value_; }
  void setValue(Variant value);
  // Raises the control's Change when it is another state. Checking an option unchecks the others of its group.
  bool Checked() const { return checked_; }
  void setChecked(bool checked);
  bool Visible() const { return visible_; }
  void setVisible(bool visible);
  // Key of a picture; "NONE" or empty for none.
  const std::string& Picture() const { return picture_; }
  void setPicture(std::string picture);
  const std::string& Tag() const { return tag_; }
  void setTag(std::string tag);
  const std::string& ToolTipText() const { return toolTipText_; }
  void setToolTipText(std::string text);
  bool Highlighted() const { return highlighted_; }
  void setHighlighted(bool highlighted);
  // -1 where none was set: the control's own ground.
  Color BackColor() const { return backColor_; }
  void setBackColor(Color color);

  // Whether the caption is bold.
  bool Bold() const { return bold_; }
  void setBold(bool bold);

  SmartItems& SubItems();
  // None before SubItems was first asked for.
  const SmartItems* subItemsIfAny() const { return subItems_.get(); }

 private:
  friend class SmartItems;
  friend class SmartUI;
  template <class T>
  void change(T& field, T next, Property property);
  // The value alone, without the control's Change.
  void putValue(Variant value);

  SmartItems& owner_;
  std::string key_;
  std::string caption_;
  std::string picture_;
  std::string tag_;
  std::string toolTipText_;
  Variant value_;
  std::unique_ptr<SmartItems> subItems_;
  std::size_t index_ = 0;
  SmartItemType type_;
  Color backColor_ = -1;
  bool checked_ = false;
  bool visible_ = true;
  bool highlighted_ = false;
  bool bold_ = false;
};

// The items of a SmartUI, or the entries of a drop-down item. Items keep their addresses until they are removed.
class SmartItems {
 public:
  explicit SmartItems(ItemsControl& control) : control_(control) {}
  SmartItems(const SmartItems&) = delete;
  SmartItems& operator=(const SmartItems&) = delete;

  // Appends an item; `position` is 0 or Count, both mean the end. Failure 5 for any other position, 457 for a key that
  // is there already. An item without a key is found by its index alone.
  SmartItem& Add(std::size_t position, std::string key, std::string caption, SmartItemType type,
                 std::string picture = {});
  void Clear();
  std::size_t Count() const { return items_.size(); }
  // Keys are compared exactly. Failure 5 when there is no such item.
  SmartItem& Item(std::string_view key);
  const SmartItem& Item(std::string_view key) const;
  bool Exists(std::string_view key) const { return byKey_.find(key) != nullptr; }
  // Failure 5 when there is no such item. The items after it move up by one.
  void Remove(std::string_view key);

  // From 0. Failure 9 out of range.
  SmartItem& at(std::size_t index);
  const SmartItem& at(std::size_t index) const;

  // Walks the items in order; what happens to the collection must not happen inside the walk.
  class Iterator {
   public:
    using Inner = std::vector<std::unique_ptr<SmartItem>>::const_iterator;
    explicit Iterator(Inner inner) : inner_(inner) {}
    SmartItem& operator*() const { return **inner_; }
    Iterator& operator++() {
      ++inner_;
      return *this;
    }
    friend bool operator==(const Iterator&, const Iterator&) = default;

   private:
    Inner inner_;
  };
  Iterator begin() const { return Iterator(items_.begin()); }
  Iterator end() const { return Iterator(items_.end()); }

  // Each is raised after the change. `removed` tells the place that the item had.
  Signal<SmartItem&> added;
  Signal<std::size_t> removed;
  Signal<> cleared;
  Signal<SmartItem&, SmartItem::Property> changed;

 private:
  friend class SmartItem;
  void uncheckOtherOptions(const SmartItem& chosen);
  std::size_t find(std::string_view key) const;

  ItemsControl& control_;
  std::vector<std::unique_ptr<SmartItem>> items_;
  ItemKeys<SmartItem> byKey_;
};

}  // namespace tarnel
