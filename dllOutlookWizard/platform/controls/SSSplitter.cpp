#include "SSSplitter.h"

#include <algorithm>

#include "Conversions.h"
#include "Failure.h"

namespace tarnel {

SSSplitter::SSSplitter(std::string name) : Control(std::move(name)) {
  onPlacement_ = placementChanged.connect([this] { resized(); });
}

SSSplitter::Pane& SSSplitter::Panes(std::string_view name) {
  if (equalsIgnoringCase(name, "Left")) return left_;
  if (equalsIgnoringCase(name, "Right")) return right_;
  throw Failure(failure::invalidCall, "There is no pane with the name " + std::string(name));
}

void SSSplitter::Pane::setContent(Control& content) {
  content_ = &content;
  content.setContainer(splitter_);
  splitter_.placeContents();
}

void SSSplitter::drag(float leftWidth) {
  setLeftWidth(leftWidth);
  SplitterEndDrag();
}

float SSSplitter::room() const { return std::max(Width() - barWidth, 0.0F); }

void SSSplitter::setPaneWidth(const Pane& pane, float width) { setLeftWidth(&pane == &left_ ? width : room() - width); }

void SSSplitter::setLeftWidth(float width) {
  const float smallest = std::min(smallestPane, room() / 2);
  left_.width_ = std::clamp(width, smallest, std::max(room() - smallest, smallest));
  right_.width_ = room() - left_.width_;
  if (room() > 0) leftShare_ = left_.width_ / room();
  placeContents();
}

void SSSplitter::resized() {
  left_.width_ = room() * leftShare_;
  right_.width_ = room() - left_.width_;
  placeContents();
}

void SSSplitter::placeContents() {
  if (left_.content_) left_.content_->Move(0, 0, left_.width_, Height());
  if (right_.content_) right_.content_->Move(left_.width_ + barWidth, 0, right_.width_, Height());
}

}  // namespace tarnel
