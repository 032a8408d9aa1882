#pragma once

#include "Clock.h"

namespace tarnel::test {

// Tells 2026-11-19 08:30:00 until it is set.
class FixedClock : public Clock {
 public:
  Date now() const override { return now_; }
  void set(Date now) { now_ = now; }

 private:
  Date now_ = Date::of(2026, 11, 19, 8, 30);
};

}  // namespace tarnel::test
