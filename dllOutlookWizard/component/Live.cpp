#include "Live.h"

#include <atomic>

namespace tarnel {
namespace {

std::atomic<std::uint32_t> objects{0};
std::atomic<std::uint32_t> locks{0};

}  // namespace

Live::Live() { ++objects; }
Live::~Live() { --objects; }

bool Live::none() { return objects == 0 && locks == 0; }
void Live::lock() { ++locks; }

void Live::unlock() {
  std::uint32_t held = locks;
  while (held > 0 && !locks.compare_exchange_weak(held, held - 1)) {
  }
}

}  // namespace tarnel
