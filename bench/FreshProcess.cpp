#include "FreshProcess.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace tarnel::bench {
namespace {

double cpuSeconds() {
  std::timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  constexpr double secondsInNanosecond = 1e-9;
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * secondsInNanosecond;
}

void require(bool good) {
  if (good) return;
  std::perror("A fresh process failed");
  std::exit(1);
}

[[noreturn]] void measureInto(int pipe, const std::function<std::function<void()>()>& prepare) {
  const std::function<void()> work = prepare();
  const double start = cpuSeconds();
  work();
  const double taken = cpuSeconds() - start;
  _exit(write(pipe, &taken, sizeof taken) == sizeof taken ? 0 : 1);
}

}  // namespace

double cpuSecondsInFreshProcess(const std::function<std::function<void()>()>& prepare) {
  std::array<int, 2> ends{};
  require(pipe(ends.data()) == 0);
  const pid_t child = fork();
  require(child >= 0);
  if (child == 0) measureInto(ends[1], prepare);
  close(ends[1]);
  double taken = 0;
  const bool told = read(ends[0], &taken, sizeof taken) == sizeof taken;
  close(ends[0]);
  int status = 0;
  require(waitpid(child, &status, 0) == child && told && status == 0);
  return taken;
}

}  // namespace tarnel::bench
