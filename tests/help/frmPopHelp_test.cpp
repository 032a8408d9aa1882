#include "frmPopHelp.h"

#include <gtest/gtest.h>

#include "HelpPage.h"

namespace tarnel::test {
namespace {

std::string visibleItems(SmartUI& bar) {
  std::string keys;
  for (const SmartItem& item : bar.Items())
    if (item.Visible()) keys += (item.Key().empty() ? "-" : item.Key()) + " ";
  return keys;
}

TEST(PopHelp, topicIsInBrowserCaptionAndPath) {
  ShownHelp help;
  EXPECT_EQ(help.form->Caption(), "Tarnel: Outlook Task Import");
  EXPECT_EQ(help.form->helpPagePath(), help.folder() / "POP-OUTLOOKINTEGRATE.htm");
  EXPECT_EQ(help.browser().LocationName(), "POP-OUTLOOKINTEGRATE.htm");
  EXPECT_EQ(visibleItems(help.bar()), "PRINT - - CLOSE ");
}

TEST(PopHelp, unknownNumberLeavesTheBrowserEmptyAndStillTellsItsPage) {
  TestPlatform platform;
  frmPopHelp form;
  std::vector<std::string> told;
  const Connection onPage = form.setHelpPage.connect([&](std::string& url) { told.push_back(url); });
  form.load();
  form.Setup(11);
  EXPECT_EQ(form.Caption(), "Tarnel");
  EXPECT_EQ(form.helpPagePath(), "");
  form.Setup(250);
  ASSERT_EQ(told.size(), 2U);
  EXPECT_EQ(told[0], "");
  EXPECT_TRUE(told[1].starts_with("file:///") && told[1].ends_with("/help/POP-OUTLOOKINTEGRATE.htm")) << told[1];
  EXPECT_TRUE(platform.errorReport.reports.empty());
}

TEST(PopHelp, tourIsLargerAndOffersItsStartUpChoice) {
  ShownHelp help;
  help.form->Move(300, 400, 5000, 5000);
  help.form->Setup(7000);
  EXPECT_EQ(help.form->placement(), (Placement{300, 400, 11280, 8340}));
  EXPECT_EQ(visibleItems(help.bar()), "NOSHOW S1 PRINT - BACK - CLOSE ");
  EXPECT_EQ(help.form->helpTourMark(), 7000);
}

TEST(PopHelp, bothWaysToCloseRaiseClosePopAndTheOpenerUnloads) {
  ShownHelp help;
  int raised = 0;
  const Connection onClose = help.form->closePop.connect([&] { ++raised; });
  help.click("CLOSE");
  EXPECT_EQ(raised, 1);
  EXPECT_TRUE(help.form->isLoaded()) << "the form does not unload itself";
  int escape = 27;
  help.form->keyDown(escape);
  EXPECT_EQ(raised, 2);
  EXPECT_EQ(escape, 0);
  help.form->unload();
  EXPECT_EQ(raised, 3);
}

TEST(PopHelp, browserLeavesRoomForTheBarAtEverySize) {
  ShownHelp help;
  help.platform.desktop.onModal = [](Form& form) {
    form.Move(0, 0, 6000, 5000);
    form.hide();
  };
  help.form->showModal(help.platform.desktop);
  EXPECT_EQ(help.browser().placement(), (Placement{0, 0, 5880, 5000 - 460 - help.bar().Height()}));
  EXPECT_EQ(help.bar().Top(), help.browser().Height());
}

}  // namespace
}  // namespace tarnel::test
