#include "TestPlatform.h"

#include "m_OutlookWizard.h"

namespace tarnel::test {

TestPlatform::TestPlatform() {
  session() = SessionState{};
  install();
}

TestPlatform::~TestPlatform() {
  session() = SessionState{};
  removePlatform();
}

void TestPlatform::use(ado::Provider& database) {
  database_ = &database;
  install();
}

void TestPlatform::use(outlook::ClassFactory& outlook) {
  outlook_ = &outlook;
  install();
}

void TestPlatform::use(const Locale& locale) {
  locale_ = locale;
  install();
}

void TestPlatform::install() {
  installPlatform(
      {desktop, clock, locale_, registry, *database_, *outlook_, errorReport, utilities, applicationFolder.path()});
}

}  // namespace tarnel::test
