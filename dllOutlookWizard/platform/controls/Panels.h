#pragma once

#include "Control.h"

namespace tarnel {

// A panel that holds other controls and hides with them.
class PictureBox : public Control {
 public:
  using Control::Control;
};

// A panel inside a splitter's pane; only its placement is used.
class SSPanel : public Control {
 public:
  using Control::Control;
};

// A picture that other controls take copies of, by its key: "OUTLOOK", "Tarnel", "CHECK".
class Image : public Control {
 public:
  Image(std::string name, std::string picture) : Control(std::move(name)), picture_(std::move(picture)) {
    setVisible(false);
  }
  const std::string& Picture() const { return picture_; }

 private:
  std::string picture_;
};

}  // namespace tarnel
