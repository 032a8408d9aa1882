#pragma once

#include <functional>
#include <vector>

#include "Control.h"
#include "Form.h"

namespace tarnel {

// Which edges of its container a control keeps its distance to.
struct Anchors {
  bool left = true;
  bool top = true;
  bool right = false;
  bool bottom = false;
};

// Watches a container and, each time its size has changed, places what is anchored in it and reports it.
class SSResizer : public Control {
 public:
  SSResizer(std::string name, int index);

  // Watches a control or the inside of a form; one at a time.
  void attach(Control& container);
  void attach(Form& form);
  // Distances are taken as they are now. Both must outlive the resizer.
  void anchor(Control& control, Anchors anchors);
  // False: from now on this resizer only reports. Meant for a BeforeResize handler.
  void setRepositioning(bool on) { repositioning_ = on; }

  Signal<SSResizer&> BeforeResize;
  Signal<> ResizeComplete;

 private:
  struct Size {
    float width = 0;
    float height = 0;
    friend bool operator==(const Size&, const Size&) = default;
  };
  struct Anchored {
    Control& control;
    Anchors anchors;
  };
  void watch(Signal<>& placed, std::function<Size()> size);
  void containerPlaced();
  static void reposition(const Anchored& anchored, Size before, Size now);

  std::function<Size()> containerSize_;
  Size size_;
  std::vector<Anchored> anchored_;
  bool repositioning_ = true;
  Connection onPlacement_;
};

}  // namespace tarnel
