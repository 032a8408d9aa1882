#include "Comparison.h"

#include <algorithm>
#include <ctime>

namespace tarnel::bench {
namespace {

double median(std::vector<double> numbers) {
  const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
  std::nth_element(numbers.begin(), middle, numbers.end());
  return *middle;
}

}  // namespace

Comparison::~Comparison() {
  if (baseline_.empty() || measured_.empty()) return;
  constexpr double millisecondsInSecond = 1000;
  state_.counters["baseline_ms"] = median(baseline_) * millisecondsInSecond;
  state_.counters["median_ms"] = median(measured_) * millisecondsInSecond;
  state_.counters["ratio"] = median(measured_) / median(baseline_);
  state_.counters["limit"] = limit_;
}

double Comparison::now() const {
  std::timespec time{};
  clock_gettime(time_ == Time::cpu ? CLOCK_PROCESS_CPUTIME_ID : CLOCK_MONOTONIC, &time);
  constexpr double secondsInNanosecond = 1e-9;
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * secondsInNanosecond;
}

}  // namespace tarnel::bench
