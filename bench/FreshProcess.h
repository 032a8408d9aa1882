#pragma once

#include <functional>

namespace tarnel::bench {

// The processor's seconds that `work` takes in a process of its own, which starts with no memory to use again: what a
// user meets who has just opened the window. In one process the smaller of two runs would live off the memory that the
// larger one left. `prepare` runs there before it, unmeasured. Ends the program when the process fails.
double cpuSecondsInFreshProcess(const std::function<std::function<void()>()>& prepare);

}  // namespace tarnel::bench
