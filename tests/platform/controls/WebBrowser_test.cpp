#include "WebBrowser.h"

#include <gtest/gtest.h>

#include "Failure.h"
#include "FooterParts.h"
#include "TempFolder.h"

namespace tarnel::test {
namespace {

namespace fs = std::filesystem;

struct Browser : testing::Test {
  Browser() {
    fs::create_directories(help / "images");
    folder.write("tarnel browser/help/one.htm", "<p>One");
    folder.write("tarnel browser/help/two part.HTML", "<p>Two");
    folder.write("tarnel browser/help/images/deep.htm", "<p>Deep");
    folder.write("tarnel browser/outside.htm", "<p>Outside");
    fs::create_symlink(home / "outside.htm", help / "linked.htm");
    browser.setFolder(help);
    browser.Navigate2(help / "one.htm");
    refusal = browser.linkRefused.connect([this](const std::string& url) { refused.push_back(url); });
  }

  TempFolder folder;
  fs::path home = folder / "tarnel browser";
  fs::path help = home / "help";
  WebBrowser browser{"browsePWindow"};
  std::vector<std::string> refused;
  Connection refusal;
};

TEST_F(Browser, linksLeadThroughTheFolderAndBack) {
  browser.followLink("two%20part.HTML#end%20");
  EXPECT_EQ(browser.LocationName(), "two part.HTML");
  EXPECT_EQ(browser.location().anchor, "end ");
  EXPECT_TRUE(browser.LocationURL().ends_with("/tarnel%20browser/help/two%20part.HTML#end%20"))
      << browser.LocationURL();
  browser.followLink("#top");
  browser.followLink("#top");
  EXPECT_EQ(browser.location().anchor, "top");
  browser.GoBack();
  browser.followLink(fileUrl({help / "one.htm", {}}));
  EXPECT_EQ(browser.html(), "<p>One");
  browser.GoBack();
  browser.GoBack();
  EXPECT_EQ(browser.LocationName(), "one.htm");
  EXPECT_FALSE(browser.canGoBack());
  EXPECT_THROW(browser.GoBack(), Failure);
}

TEST_F(Browser, whatLeadsElsewhereIsRefusedAndChangesNothing) {
  std::vector<std::string> links{home.string() + "/outside.htm"};
  for (const char* link :
       {"http://example.org/one.htm", "HTTPS://example.org", "mailto:a@b", "javascript:x()", "//host/one.htm",
        "file://host/one.htm", "../outside.htm", "%2e%2e/outside.htm", "linked.htm", "images/deep.htm", "images",
        "one.htm%00", "one.htm%4", "one.htm%zz", "notes.txt", ".."})
    links.push_back(link);
  for (const std::string& link : links) browser.followLink(link);
  browser.followLink("");  // the page itself
  EXPECT_EQ(refused, links);
  EXPECT_EQ(browser.LocationName(), "one.htm");
  EXPECT_FALSE(browser.canGoBack());
}

TEST_F(Browser, pageThatCannotBeShownSaysSo) {
  browser.followLink("missing&gone.htm");
  EXPECT_EQ(browser.LocationName(), "missing&gone.htm");
  EXPECT_NE(browser.html().find("missing&amp;gone.htm"), std::string::npos) << browser.html();
  browser.Navigate2(help);
  EXPECT_NE(browser.html().find("it is no file"), std::string::npos) << browser.html();
}

TEST(EmptyBrowser, hasNoPageAndFollowsNothing) {
  WebBrowser browser("browsePWindow");
  browser.followLink("one.htm");
  EXPECT_EQ(browser.LocationName() + browser.html(), "http:///");
}

TEST(Footer, marksBecomeParts) {
  EXPECT_EQ(footerParts("{newline}{line}{Left}11/19/2026{Right}Page {PageNum}", 12),
            (FooterParts{true, "11/19/2026", "Page 12"}));
  EXPECT_EQ(footerParts("{Right}{other}{", 1), (FooterParts{false, "", "{other}{"}));
  EXPECT_EQ(footerParts("", 1), FooterParts{});
}

}  // namespace
}  // namespace tarnel::test
