#pragma once

#include <functional>
#include <memory>

#include "Composition.h"

namespace tarnel {

// How a wizard shows itself: each call gives the desktop for one wizard. Failure 53 when no screen can be reached, 429
// when the component was built without windows.
using Face = std::function<std::shared_ptr<Desktop>()>;

Face windowFace();
Face scriptFace(int commands, int facts);
Face picturesFace(const PictureOptions& options, int told);

}  // namespace tarnel
