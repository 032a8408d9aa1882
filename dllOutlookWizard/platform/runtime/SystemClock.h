#pragma once

#include "Clock.h"

namespace tarnel {

// The system's clock in the zone that the environment sets.
class SystemClock : public Clock {
 public:
  Date now() const override;
};

}  // namespace tarnel
