#include "SystemClock.h"

#include <ctime>

namespace tarnel {

Date SystemClock::now() const {
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  localtime_r(&seconds, &local);
  return Date::of(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
}

}  // namespace tarnel
