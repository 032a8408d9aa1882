#include "SSResizer.h"

namespace tarnel {

SSResizer::SSResizer(std::string name, int index) : Control(std::move(name), index) { setVisible(false); }

void SSResizer::attach(Control& container) {
  watch(container.placementChanged, [&container] { return Size{container.Width(), container.Height()}; });
}

void SSResizer::attach(Form& form) {
  watch(form.placementChanged, [&form] { return Size{form.ScaleWidth(), form.ScaleHeight()}; });
}

void SSResizer::watch(Signal<>& placed, std::function<Size()> size) {
  containerSize_ = std::move(size);
  size_ = containerSize_();
  onPlacement_ = placed.connect([this] { containerPlaced(); });
}

void SSResizer::anchor(Control& control, Anchors anchors) { anchored_.push_back({control, anchors}); }

void SSResizer::containerPlaced() {
  const Size now = containerSize_();
  if (now == size_) return;
  const Size before = size_;
  size_ = now;
  BeforeResize(*this);
  if (repositioning_)
    for (const Anchored& anchored : anchored_) reposition(anchored, before, now);
  ResizeComplete();
}

void SSResizer::reposition(const Anchored& anchored, Size before, Size now) {
  const auto& [control, anchors] = anchored;
  const float wider = now.width - before.width;
  const float higher = now.height - before.height;
  Placement to = control.placement();
  if (anchors.right) (anchors.left ? to.width : to.left) += wider;
  if (anchors.bottom) (anchors.top ? to.height : to.top) += higher;
  control.Move(to.left, to.top, to.width, to.height);
}

}  // namespace tarnel
