#include "ErrorReport.h"

#include <gtest/gtest.h>

#include "TestPlatform.h"

namespace tarnel::test {
namespace {

TEST(ErrorReport, showsEachFailureKeepsTheFirstAndAppendsBoth) {
  TestPlatform platform;
  const auto file = platform.applicationFolder / "state/errors.txt";
  ErrorReport errorReport(platform.desktop, platform.clock, file);
  errorReport.report({"dllTarnel", "clsTaskList", "GetDataKEY", "two\r\nlines", -7, 0, "Work"});
  errorReport.report({"TarnelOutWizard", "frmOutWiz", "SetupForm", "second", 91, 0, ""});
  EXPECT_EQ(platform.desktop.reports.size(), 2U);
  EXPECT_EQ(errorReport.first()->procedure, "GetDataKEY");
  EXPECT_TRUE(errorReport.firstKept());
  const std::string written = contentsOf(file);
  EXPECT_EQ(written.substr(0, written.find("second")),
            "2026-11-19 08:30:00\n  project:   dllTarnel\n  module:    clsTaskList\n  procedure: GetDataKEY\n"
            "  text:      two  lines\n  number:    -7\n  line mark: 0\n  profile:   Work\n"
            "2026-11-19 08:30:00\n  project:   TarnelOutWizard\n  module:    frmOutWiz\n  procedure: SetupForm\n"
            "  text:      ");
}

TEST(ErrorReport, fileThatCantBeWrittenStopsNothing) {
  TestPlatform platform;
  const auto blocked = platform.applicationFolder.write("file", "") / "errors.txt";
  ErrorReport errorReport(platform.desktop, platform.clock, blocked);
  errorReport.report({"P", "M", "F", "text", 1, 0, ""});
  EXPECT_EQ(platform.desktop.reports.size(), 1U);
  EXPECT_FALSE(errorReport.firstKept());
}

}  // namespace
}  // namespace tarnel::test
