#include "Control.h"

namespace tarnel {

Control::Control(std::string name, std::optional<int> index) : name_(std::move(name)), index_(index) {}

Control::~Control() {
  if (container_) std::erase(container_->contents_, this);
  for (Control* inside : contents_) inside->container_ = nullptr;
}

std::string Control::fullName() const { return index_ ? name_ + "(" + std::to_string(*index_) + ")" : name_; }

void Control::Move(float left, float top, float width, float height) {
  const Placement next{left, top, std::max(width, 0.0F), std::max(height, 0.0F)};
  if (next == placement_) return;
  placement_ = next;
  placementChanged();
}

void Control::setVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  visibleChanged();
}

void Control::setEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  enabledChanged();
}

void Control::setContainer(Control& container) {
  if (container_) std::erase(container_->contents_, this);
  container_ = &container;
  container.contents_.push_back(this);
}

}  // namespace tarnel
