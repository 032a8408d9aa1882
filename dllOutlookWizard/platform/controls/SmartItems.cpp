#include "SmartItems.h"

#include <iterator>

#include "Failure.h"

namespace tarnel {

SmartItem::SmartItem(SmartItems& owner, std::string key, std::string caption, SmartItemType type, std::string picture)
    : owner_(owner), key_(std::move(key)), caption_(std::move(caption)), picture_(std::move(picture)), type_(type) {}

SmartItem::~SmartItem() = default;

template <class T>
void SmartItem::change(T& field, T next, Property property) {
  if (field == next) return;
  field = std::move(next);
  owner_.changed(*this, property);
}

void SmartItem::setCaption(std::string caption) { change(caption_, std::move(caption), Property::caption); }
void SmartItem::setVisible(bool visible) { change(visible_, visible, Property::visible); }
void SmartItem::setPicture(std::string picture) { change(picture_, std::move(picture), Property::picture); }
void SmartItem::setTag(std::string tag) { change(tag_, std::move(tag), Property::tag); }
void SmartItem::setToolTipText(std::string text) { change(toolTipText_, std::move(text), Property::toolTipText); }
void SmartItem::setHighlighted(bool highlighted) { change(highlighted_, highlighted, Property::highlighted); }
void SmartItem::setBackColor(Color color) { change(backColor_, color, Property::backColor); }
void SmartItem::setBold(bool bold) { change(bold_, bold, Property::bold); }

void SmartItem::putValue(Variant value) { change(value_, std::move(value), Property::value); }

void SmartItem::setValue(Variant value) {
  if (value == value_) return;
  putValue(std::move(value));
  owner_.control_.itemChanged(*this, "Value");
}

void SmartItem::setChecked(bool checked) {
  if (checked == checked_) return;
  change(checked_, checked, Property::checked);
  if (checked && type_ == SmartItemType::option) owner_.uncheckOtherOptions(*this);
  owner_.control_.itemChanged(*this, "Checked");
}

SmartItems& SmartItem::SubItems() {
  if (!subItems_) subItems_ = std::make_unique<SmartItems>(owner_.control_);
  return *subItems_;
}

SmartItem& SmartItems::Add(std::size_t position, std::string key, std::string caption, SmartItemType type,
                           std::string picture) {
  if (position != 0 && position != items_.size())
    throw Failure(failure::invalidCall, "An item can only be added at the end");
  if (!key.empty() && Exists(key))
    throw Failure(failure::keyNotUnique, "This key is already associated with an element of this collection: " + key);
  auto item = std::make_unique<SmartItem>(*this, std::move(key), std::move(caption), type, std::move(picture));
  SmartItem& result = *item;
  result.index_ = items_.size();
  items_.push_back(std::move(item));
  if (!result.key_.empty()) byKey_.add(result);
  control_.itemAdded(result);
  added(result);
  return result;
}

void SmartItems::Clear() {
  control_.itemsGo();
  byKey_.clear();
  items_.clear();
  cleared();
}

std::size_t SmartItems::find(std::string_view key) const {
  const SmartItem* found = byKey_.find(key);
  if (!found) throw Failure(failure::invalidCall, "There is no item with the key " + std::string(key));
  return found->index_;
}

SmartItem& SmartItems::Item(std::string_view key) { return *items_[find(key)]; }
const SmartItem& SmartItems::Item(std::string_view key) const { return *items_[find(key)]; }

void SmartItems::Remove(std::string_view key) {
  const std::size_t index = find(key);
  control_.itemsGo();
  byKey_.remove(key);
  items_.erase(std::next(items_.begin(), static_cast<std::ptrdiff_t>(index)));
  for (std::size_t i = index; i < items_.size(); ++i) items_[i]->index_ = i;
  removed(index);
}

SmartItem& SmartItems::at(std::size_t index) {
  if (index >= items_.size()) failSubscript();
  return *items_[index];
}

const SmartItem& SmartItems::at(std::size_t index) const {
  if (index >= items_.size()) failSubscript();
  return *items_[index];
}

void SmartItems::uncheckOtherOptions(const SmartItem& chosen) {
  const auto isGroup = [this](std::size_t i) { return items_[i]->type_ == SmartItemType::group; };
  std::size_t first = chosen.index_;
  while (first > 0 && !isGroup(first - 1)) --first;
  for (std::size_t i = first; i < items_.size() && !isGroup(i); ++i)
    if (items_[i].get() != &chosen && items_[i]->type_ == SmartItemType::option) items_[i]->setChecked(false);
}

}  // namespace tarnel
