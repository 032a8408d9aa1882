#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "Failure.h"

namespace tarnel::fuzz {

// What one run gets, cut into parts at each line "--".
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

  // The next part; empty after the last one.
  std::string part() {
    const std::size_t end = rest_.find("\n--\n");
    const std::string_view part = rest_.substr(0, end);
    rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + 4);
    return std::string(part);
  }

 private:
  std::string_view rest_;
};

// A broken promise ends the program, which is how the fuzzer sees it.
inline void require(bool kept, std::string_view promise) {
  if (kept) return;
  std::fprintf(stderr, "Broken promise: %.*s\n", static_cast<int>(promise.size()), promise.data());
  std::abort();
}

// Runs the body; failures of the world are an answer like any other. Whether it came to its end.
template <class Body>
bool answered(Body&& body) {
  try {
    body();
    return true;
  } catch (const Failure& failure) {
    require(!failure.description().empty(), "a failure has words");
    return false;
  }
}

}  // namespace tarnel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
