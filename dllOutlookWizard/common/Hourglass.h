#pragma once

#include "Platform.h"

namespace tarnel {

// The mouse pointer is the hourglass while this object lives, also where a failure ends its life.
class Hourglass {
 public:
  Hourglass() { platform().desktop.setMousePointer(MousePointer::hourglass); }
  ~Hourglass() { platform().desktop.setMousePointer(MousePointer::standard); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
};

}  // namespace tarnel
