#include <gtest/gtest.h>

#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <algorithm>
#include <cstdio>
#include <memory>

#include "BrowserView.h"
#include "FailureOf.h"
#include "HtmlFile.h"
#include "Paper.h"
#include "PdfOutput.h"
#include "TempFolder.h"

namespace tarnel::qt {
namespace {

namespace fs = std::filesystem;

std::string outputOf(const std::string& command) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::string text;
  for (int c = std::fgetc(pipe.get()); c != EOF; c = std::fgetc(pipe.get())) text += static_cast<char>(c);
  return text;
}

struct HelpPaper : testing::Test {
  static Document topic() {
    Document document;
    document.file = fs::path(HELP_PAGES) / "POP-OUTLOOKINTEGRATE.htm";
    document.html = readHtmlFile(document.file);
    document.imageFolder = HELP_PAGES;
    document.footer = "{newline}{line}{Left}Printed 11/19/2026{Right}Page {PageNum}";
    document.margins = {1134, 1701, 1418, 850};
    return document;
  }
  fs::path written(const Document& document) {
    PdfOutput output(folder.path().string(),
                     [this](const std::string&, const fs::path& file) { files.push_back(file); });
    output.print(document, "Print");
    return files.back();
  }
  test::TempFolder folder;
  std::vector<fs::path> files;
};

// Whichever headings move to a next page.
TEST_F(HelpPaper, pagesPrintToTheirLastWordAtEveryHeight) {
  for (const char* name : {"outlook-appointments.htm", "outlook-settings.htm", "outlook-tasks.htm"}) {
    Document document = topic();
    document.file = fs::path(HELP_PAGES) / name;
    document.html = readHtmlFile(document.file);
    document.footer.clear();
    for (int bottom = 1000; bottom < 9000; bottom += 1000) {
      document.margins.bottom = bottom;
      std::string text = outputOf("pdftotext '" + written(document).string() + "' -");
      text.erase(text.find_last_not_of(" \n\f") + 1);
      std::replace(text.begin(), text.end(), '\f', '\n');  // a page may end just before
      EXPECT_NE(text.rfind("\nNext: "), std::string::npos)
          << name << " " << bottom << " ends with " << text.substr(text.size() - 60);
    }
  }
}

TEST_F(HelpPaper, jobsGetFilesOfTheirOwnAndAnUnwritableFolderIsNamed) {
  const fs::path first = written(topic());
  EXPECT_EQ(first.filename(), "POP-OUTLOOKINTEGRATE.pdf");
  EXPECT_EQ(written(topic()).filename(), "POP-OUTLOOKINTEGRATE-2.pdf");
  const std::string page = "/no such folder/page.pdf";
  EXPECT_TRUE(test::contains(test::failureTextOf([&] { writePdf(topic(), page); }), page));
}

struct NoSite : ViewSite {
  void act(const std::function<void()>& gesture) override { gesture(); }
  void tabStopsChanged() override {}
  std::shared_ptr<ScheduleGroup> schedules() override { return nullptr; }
};

TEST_F(HelpPaper, browserTakesPagesAndPicturesFromItsFolderAlone) {
  NoSite site;
  WebBrowser browser("browsePWindow");
  browser.setFolder(HELP_PAGES);
  BrowserView view(browser, site, nullptr);
  browser.Navigate2(fs::path(HELP_PAGES) / "helpindex.htm");
  EXPECT_TRUE(view.toPlainText().contains(QStringLiteral("The Outlook Wizard")));
  Q_EMIT view.anchorClicked(QUrl(QStringLiteral("outlook-tasks.htm#commands")));
  EXPECT_EQ(browser.LocationName(), "outlook-tasks.htm");
  EXPECT_TRUE(view.toPlainText().contains(QStringLiteral("Mark as Done")));

  const fs::path outside = folder / "outside.png";
  QImage(4, 4, QImage::Format_RGB32).save(QString::fromStdString(outside.string()));
  EXPECT_FALSE(
      view.loadResource(QTextDocument::ImageResource, QUrl::fromLocalFile(QString::fromStdString(outside.string())))
          .isValid());
  EXPECT_FALSE(
      view.loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("http://example.org/a.png"))).isValid());
}

TEST_F(HelpPaper, theSheetBesideAPageStylesItOnScreenAndOnPaper) {
  folder.write("style.css", "p { color: #0b5a46 } p.next { page-break-before: always }");
  Document document;
  document.html =
      "<html><head><link rel=\"stylesheet\" type=\"text/css\" href=\"style.css\"></head>"
      "<body><p>One</p><p class=\"next\">Two</p></body></html>";
  document.file = folder.write("page.htm", document.html);
  document.imageFolder = folder.path();
  const std::string text = outputOf("pdftotext '" + written(document).string() + "' -");
  EXPECT_EQ(text.substr(0, text.find("Two")), "One\n\n\f");

  NoSite site;
  WebBrowser browser("browsePWindow");
  BrowserView view(browser, site, nullptr);
  const auto color = [&view] { return view.document()->begin().begin().fragment().charFormat().foreground().color(); };
  browser.Navigate2(document.file);
  EXPECT_NE(color(), QColor(0x0b, 0x5a, 0x46)) << "no folder is set";
  browser.setFolder(folder.path());
  browser.Navigate2(folder.write("again.htm", document.html));
  EXPECT_EQ(color(), QColor(0x0b, 0x5a, 0x46));
}

TEST_F(HelpPaper, pageOfFiveMegabytesIsShown) {
  std::string page;
  for (int i = 0; i < 50000; ++i) page += "<p>Line " + std::to_string(i) + std::string(85, 'x') + "</p>\n";
  NoSite site;
  WebBrowser browser("browsePWindow");
  BrowserView view(browser, site, nullptr);
  browser.Navigate2(folder.write("long.htm", page));
  EXPECT_EQ(view.document()->blockCount(), 50000);
}

}  // namespace
}  // namespace tarnel::qt
