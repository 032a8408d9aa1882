#pragma once

#include "Doubles.h"
#include "FakeDesktop.h"
#include "FileRegistry.h"
#include "FixedClock.h"
#include "TempFolder.h"
#include "m_OutlookWizard.h"

namespace tarnel::test {

// Installs a platform of doubles for as long as it lives, on a fresh session state: month-first dates, 2026-11-19
// 08:30, an application folder of its own, no database and no Outlook until the test gives them.
class TestPlatform {
 public:
  TestPlatform() {
    session() = SessionState{};
    install();
  }
  ~TestPlatform() {
    session() = SessionState{};
    removePlatform();
  }
  TestPlatform(const TestPlatform&) = delete;
  TestPlatform& operator=(const TestPlatform&) = delete;

  // The test keeps what it gives until the platform is gone.
  void use(ado::Provider& database) {
    database_ = &database;
    install();
  }
  void use(outlook::ClassFactory& outlook) {
    outlook_ = &outlook;
    install();
  }
  void use(const Locale& locale) {
    locale_ = locale;
    install();
  }

  FixedClock clock;
  FakeDesktop desktop;
  FakeErrorReport errorReport;
  FakeUtilities utilities;
  TempFolder applicationFolder;
  FileRegistry registry{applicationFolder / "registry"};

 private:
  void install() {
    installPlatform(
        {desktop, clock, locale_, registry, *database_, *outlook_, errorReport, utilities, applicationFolder.path()});
  }

  NoDatabase noDatabase_;
  NoOutlook noOutlook_;
  ado::Provider* database_ = &noDatabase_;
  outlook::ClassFactory* outlook_ = &noOutlook_;
  Locale locale_;
};

}  // namespace tarnel::test
