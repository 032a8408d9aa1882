#pragma once

#include <benchmark/benchmark.h>

#include <vector>

namespace tarnel::bench {

// Runs a baseline and what is measured against it in turn, so that whatever else the machine does meets both alike.
// At its end the counters tell both medians in milliseconds, their ratio and the most that it may be. The benchmark
// takes manual time and as many iterations as the medians need.
//
//   Comparison comparison(state, Comparison::Time::cpu, 5);
//   for (auto _ : state) {
//     comparison.baseline([&] { ... });
//     comparison.measured([&] { ... });
//   }
class Comparison {
 public:
  // The processor's time for work that waits for nothing, the wall's for work that waits for the disk.
  enum class Time { cpu, wall };

  Comparison(benchmark::State& state, Time time, double limit) : state_(state), time_(time), limit_(limit) {}
  ~Comparison();
  Comparison(const Comparison&) = delete;
  Comparison& operator=(const Comparison&) = delete;

  template <class Work>
  void baseline(Work work) {
    addBaseline(secondsOf(work));
  }
  template <class Work>
  void measured(Work work) {
    addMeasured(secondsOf(work));
  }
  // Seconds that were measured elsewhere.
  void addBaseline(double seconds) { baseline_.push_back(seconds); }
  void addMeasured(double seconds) {
    measured_.push_back(seconds);
    state_.SetIterationTime(seconds);
  }

 private:
  template <class Work>
  double secondsOf(Work& work) const {
    const double start = now();
    work();
    return now() - start;
  }
  double now() const;

  benchmark::State& state_;
  Time time_;
  double limit_;
  std::vector<double> baseline_;
  std::vector<double> measured_;
};

}  // namespace tarnel::bench
