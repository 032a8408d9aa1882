#pragma once

#include <cstdint>

#include "Failure.h"

namespace tarnel::test {

// The number of the Failure that `act` throws, 0 when it throws none.
template <class Act>
std::int32_t failureOf(const Act& act) {
  try {
    act();
  } catch (const Failure& failure) {
    return failure.number();
  }
  return 0;
}

}  // namespace tarnel::test
