#pragma once

#include <string>
#include <vector>

#include "Platform.h"

namespace tarnel::test {

// Records its calls and does nothing else.
class FakeUtilities : public TarnelUtilities {
 public:
  struct Call {
    Code code;
    std::string first;
    std::string second;
  };
  std::vector<Call> calls;

  void run(Code code, const std::string& first, const std::string& second) override {
    calls.push_back({code, first, second});
  }
};

}  // namespace tarnel::test
