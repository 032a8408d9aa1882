#pragma once

#include "Control.h"

namespace tarnel {

// A line or paragraph of text.
class Label : public Control {
 public:
  // text: plain, beside what it names. heading: the form's explaining paragraph. band: the title over a list.
  // backdrop: no text, the ground under the heading.
  enum class Look { text, heading, band, backdrop };

  Label(std::string name, Look look, std::string caption = {}) : Label(std::move(name), {}, look, std::move(caption)) {}
  Label(std::string name, std::optional<int> index, Look look, std::string caption = {})
      : Control(std::move(name), index), look_(look), caption_(std::move(caption)) {}

  Look look() const { return look_; }
  const std::string& Caption() const { return caption_; }
  void setCaption(std::string caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    captionChanged();
  }

  Signal<> captionChanged;

 private:
  Look look_;
  std::string caption_;
};

}  // namespace tarnel
