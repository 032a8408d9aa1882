#include "ErrorReport.h"

#include <gtest/gtest.h>

#include "TestPlatform.h"

namespace tarnel::test {
namespace {

TEST(ErrorReport, showsEachFailureKeepsTheFirstAndAppendsBoth) {
  TestPlatform platform;
  const auto file = platform.applicationFolder / "state/errors.txt";
  ErrorReport errorReport(platform.desktop, platform.clock, file, [](FailureReport& report) {
    report.database = "/tasks.db";
    report.mailbox = "/o.mailbox";
  });
  errorReport.report({"dllTarnel", "clsTaskList", "GetDataKEY", "two\r\nlines", -7, 0, "Work"});
  errorReport.report({"TarnelOutWizard", "frmOutWiz", "SetupForm", "second", 91, 0, ""});
  EXPECT_EQ(platform.desktop.reports.size(), 2U);
  EXPECT_EQ(errorReport.first()->procedure, "GetDataKEY");
  EXPECT_TRUE(errorReport.firstKept());
  EXPECT_EQ(platform.desktop.reports[1].keptIn, file.string());
  const std::string written = contentsOf(file);
  EXPECT_EQ(written.substr(0, written.find("second")),
            "2026-11-19 08:30:00\n  project:   dllTarnel\n  module:    clsTaskList\n  procedure: GetDataKEY\n"
            "  text:      two  lines\n  number:    -7\n  line mark: 0\n  profile:   Work\n"
            "  version:   1.14.0\n  database:  /tasks.db\n  mailbox:   /o.mailbox\n  report in: " +
                file.string() +
                "\n"
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

TEST(ErrorReport, fileStaysBelowFiveMegabytesWithOneOlderOneBeside) {
  TestPlatform platform;
  const auto file = platform.applicationFolder / "errors.txt", older = platform.applicationFolder / "errors.old.txt";
  ErrorReport errorReport(platform.desktop, platform.clock, file);
  errorReport.report({"P", "M", "F", std::string(6'000'000, 'x'), 1, 0, ""});
  EXPECT_LT(contentsOf(file).size(), 200'000U);
  for (int round = 1; round <= 2; ++round) {
    std::filesystem::resize_file(file, 4'999'900);
    errorReport.report({"P", "M", "F", "round " + std::to_string(round), 1, 0, ""});
    EXPECT_LT(contentsOf(file).size(), 300U);
    EXPECT_NE(contentsOf(file).find("round " + std::to_string(round)), std::string::npos);
    EXPECT_EQ(std::filesystem::file_size(older), 4'999'900U);
    EXPECT_EQ(std::filesystem::status(file).permissions(), static_cast<std::filesystem::perms>(0600));
  }
}

}  // namespace
}  // namespace tarnel::test
