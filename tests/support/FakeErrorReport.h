#pragma once

#include <vector>

#include "Platform.h"

namespace tarnel::test {

class FakeErrorReport : public TarnelErrReport {
 public:
  std::vector<FailureReport> reports;

  void report(const FailureReport& report) override { reports.push_back(report); }
};

}  // namespace tarnel::test
