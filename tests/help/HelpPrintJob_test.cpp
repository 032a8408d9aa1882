#include <gtest/gtest.h>

#include "HelpPage.h"

namespace tarnel::test {
namespace {

TEST(HelpPrintJob, printCallsTheEditorInItsOrderAndHandsOverTheWholeJob) {
  ShownHelp help;
  help.platform.desktop.answers = {MessageAnswer::yes};
  help.click("PRINT");
  EXPECT_EQ(help.calls,
            "SetPageText SetPageMargins EditorState1 EditorState2 EditorState3 EditorState4 EditorState5 "
            "EditorState6 htmlimgdir LoadHtmlFile AfterLoad PrintDocument AfterOutput EditorState5 FinishDocument "
            "EditorState4 ");
  ASSERT_EQ(help.output->jobs.size(), 1U);
  const Document& job = help.output->jobs[0];
  EXPECT_EQ(help.output->names[0], "Print");
  EXPECT_EQ(job.html, "<p>Topic");
  EXPECT_EQ(job.imageFolder, help.folder());
  EXPECT_EQ(job.margins, (PageMargins{567, 850, 1418, 1134}));
  EXPECT_EQ(job.footer, "{newline}{line}{Left}Tarnel - Version 1.14{Right}{PageNum}");
  EXPECT_EQ(job.footerFont, "Serif");
  EXPECT_EQ(job.footerSize, 9);
  EXPECT_EQ(help.editor().editorState(), (SpellEditor::EditorState{false, false, true, "", false, true}));
  EXPECT_EQ(help.editor().pageText().firstFooter, job.footer);
  EXPECT_EQ(help.platform.desktop.messageTexts(),
            std::vector<std::string>{"Print this help topic? It may take a moment or two to prepare."});
  EXPECT_EQ(help.platform.desktop.pointers, (std::vector{MousePointer::hourglass, MousePointer::standard}));
  EXPECT_EQ(help.platform.desktop.progressSteps.back(), (std::pair{1, 1}));
  EXPECT_TRUE(help.platform.errorReport.reports.empty());
}

TEST(HelpPrintJob, previewAsksItsOwnQuestionAndPrintsNothing) {
  ShownHelp help;
  help.platform.desktop.answers = {MessageAnswer::yes};
  help.click("PRINT", "PRINTPREVIEW");
  EXPECT_NE(help.calls.find("AfterLoad PreviewDocument AfterOutput"), std::string::npos) << help.calls;
  EXPECT_TRUE(help.output->jobs.empty());
  EXPECT_EQ(help.platform.desktop.messageTexts(),
            std::vector<std::string>{"Print Preview this help topic? It may take a moment or two to prepare."});
}

TEST(HelpPrintJob, entryAndParentPrintAlikeAndNoDoesNothing) {
  ShownHelp help;
  help.platform.desktop.answers = {MessageAnswer::yes, MessageAnswer::no};
  help.click("PRINT", "PRINT");
  EXPECT_EQ(help.output->jobs.size(), 1U);
  help.calls.clear();
  help.click("PRINT");
  EXPECT_EQ(help.calls, "");
  EXPECT_EQ(help.platform.desktop.pointers.size(), 2U);
}

TEST(HelpPrintJob, settingsAreReadAfreshForEachJob) {
  ShownHelp help;
  help.settings("2.5", "--Date Time--", "end");
  help.platform.desktop.answers = {MessageAnswer::yes, MessageAnswer::yes};
  help.click("PRINT");
  help.platform.clock.set(Date::of(2026, 11, 20, 9, 45));
  help.click("PRINT");
  EXPECT_EQ(help.output->jobs.at(0).footer, "{newline}{line}{Left}11/19/2026 08:30{Right}end");
  EXPECT_EQ(help.output->jobs.at(1).footer, "{newline}{line}{Left}11/20/2026 09:45{Right}end");
}

TEST(HelpPrintJob, failureOnTheWayIsReportedAndThePointerComesBack) {
  const auto failing = [](const char* what, auto breakIt) {
    ShownHelp help;
    breakIt(help);
    help.platform.desktop.answers = {MessageAnswer::yes};
    help.click("PRINT");
    ASSERT_EQ(help.platform.errorReport.reports.size(), 1U) << what;
    const FailureReport& report = help.platform.errorReport.reports[0];
    EXPECT_EQ(report.project + "." + report.module + "." + report.procedure,
              "TarnelExportExcel.frmPopHelp.smtAction_Click")
        << what;
    EXPECT_EQ(help.platform.desktop.mousePointer(), MousePointer::standard) << what;
    EXPECT_FALSE(help.form->isLoaded()) << what;
  };
  failing("no file", [](ShownHelp& help) { std::filesystem::remove(help.folder() / "POP-OUTLOOKINTEGRATE.htm"); });
  failing("no output", [](ShownHelp& help) { help.editor().setOutput(nullptr); });
  failing("output fails", [](ShownHelp& help) { help.output->failing = true; });
  failing("margin out of range", [](ShownHelp& help) { help.settings("1e30"); });
}

TEST(HelpPrintJob, popupClosedWhileItPreparesStillEndsItsJob) {
  ShownHelp help;
  help.platform.desktop.answers = {MessageAnswer::yes};
  help.platform.desktop.onEvents = [&help] { help.form->unload(); };
  help.click("PRINT");
  EXPECT_EQ(help.output->jobs.size(), 1U);
  EXPECT_EQ(help.platform.desktop.mousePointer(), MousePointer::standard);
}

}  // namespace
}  // namespace tarnel::test
