#pragma once

#include "FakeDesktop.h"
#include "FakeErrorReport.h"
#include "FakeUtilities.h"
#include "FixedClock.h"
#include "MemoryRegistry.h"
#include "NoDatabase.h"
#include "NoOutlook.h"
#include "Platform.h"
#include "TempFolder.h"

namespace tarnel::test {

// Installs a platform of doubles for as long as it lives, on a fresh session state: month-first dates, 2026-11-19
// 08:30, an application folder of its own, no database and no Outlook until the test gives them.
//
//   TestPlatform platform;
//   platform.use(sqliteProvider);
//   ...
//   EXPECT_EQ(platform.errorReport.reports.size(), 0);
class TestPlatform {
 public:
  TestPlatform();
  ~TestPlatform();
  TestPlatform(const TestPlatform&) = delete;
  TestPlatform& operator=(const TestPlatform&) = delete;

  // The test keeps what it gives until the platform is gone.
  void use(ado::Provider& database);
  void use(outlook::ClassFactory& outlook);
  void use(const Locale& locale);

  FixedClock clock;
  FakeDesktop desktop;
  FakeErrorReport errorReport;
  FakeUtilities utilities;
  MemoryRegistry registry;
  TempFolder applicationFolder;

 private:
  void install();

  NoDatabase noDatabase_;
  NoOutlook noOutlook_;
  ado::Provider* database_ = &noDatabase_;
  outlook::ClassFactory* outlook_ = &noOutlook_;
  Locale locale_;
};

}  // namespace tarnel::test
