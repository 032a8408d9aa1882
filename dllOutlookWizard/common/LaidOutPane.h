#pragma once

#include <functional>

#include "Panels.h"
#include "SSResizer.h"

namespace tarnel {

// Height of a caption, an action bar and the time bar, in twips.
inline constexpr float bandHeight = 330;

// One side of a tab: a pane and the resizer that reports its changes, with a procedure that places what is in it.
class LaidOutPane {
 public:
  // `layOut` takes the pane's width and height in twips and runs under the standard handler, each time they change.
  LaidOutPane(int paneIndex, int resizerIndex, std::function<void(float width, float height)> layOut);

  SSPanel panel;      // paneAppt(paneIndex)
  SSResizer resizer;  // SSResizer1(resizerIndex)

 private:
  Connection onBeforeResize_;
  Connection onResizeComplete_;
};

}  // namespace tarnel
