#pragma once

#include "Date.h"

namespace tarnel {

class Clock {
 public:
  virtual ~Clock() = default;
  // The present date and time, local wall time.
  virtual Date now() const = 0;
};

}  // namespace tarnel
