#include "LaidOutPane.h"

#include "StandardHandler.h"

namespace tarnel {

LaidOutPane::LaidOutPane(int paneIndex, int resizerIndex, std::function<void(float width, float height)> layOut)
    : panel("paneAppt", paneIndex), resizer("SSResizer1", resizerIndex) {
  resizer.attach(panel);
  // The procedure alone places the pane's controls.
  onBeforeResize_ = resizer.BeforeResize.connect([](SSResizer& itself) {
    standardHandler(modules::frmOutWiz, "SSResizer1_BeforeResize", [&] { itself.setRepositioning(false); });
  });
  onResizeComplete_ = resizer.ResizeComplete.connect([this, layOut = std::move(layOut)] {
    standardHandler(modules::frmOutWiz, "SSResizer1_ResizeComplete", [&] { layOut(panel.Width(), panel.Height()); });
  });
}

}  // namespace tarnel
