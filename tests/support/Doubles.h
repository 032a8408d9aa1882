#pragma once

#include <string>
#include <vector>

#include "ClassFactory.h"
#include "Failure.h"
#include "Platform.h"

namespace tarnel::test {

// The host's closed libraries, which record what they are called for and do nothing else.
struct FakeErrorReport : TarnelErrReport {
  std::vector<FailureReport> reports;
  void report(const FailureReport& report) override { reports.push_back(report); }
};
struct FakeUtilities : TarnelUtilities {
  int runs = 0;
  void run(Code, const std::string&, const std::string&) override { ++runs; }
};

// For tests that open no database: every open fails and says so.
struct NoDatabase : ado::Provider {
  std::shared_ptr<ado::Session> open(std::string_view connectionString) override {
    throw Failure(failure::engine, "This test has no database: " + std::string(connectionString));
  }
};

// A machine without Outlook and Redemption: every operation fails with 429.
struct NoOutlook : outlook::ClassFactory {
  [[noreturn]] static void fail() { throw Failure(failure::noSuchObject, "ActiveX component can't create object"); }
  std::shared_ptr<outlook::Application> activeApplication() override { fail(); }
  std::shared_ptr<outlook::Application> createApplication() override { fail(); }
  std::unique_ptr<outlook::SafeTaskItem> createSafeTaskItem() override { fail(); }
  std::unique_ptr<outlook::SafeAppointmentItem> createSafeAppointmentItem() override { fail(); }
  std::unique_ptr<outlook::MAPITable> createMAPITable() override { fail(); }
  std::unique_ptr<outlook::MAPIUtils> createMAPIUtils() override { fail(); }
};

}  // namespace tarnel::test
