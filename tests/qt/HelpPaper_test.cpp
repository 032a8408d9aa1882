#include <gtest/gtest.h>

#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <cstdio>
#include <fstream>
#include <limits>
#include <memory>
#include <regex>

#include "BrowserView.h"
#include "Failure.h"
#include "HtmlFile.h"
#include "Paper.h"
#include "PdfOutput.h"

namespace tarnel::qt {
namespace {

namespace fs = std::filesystem;

std::string outputOf(const std::string& command) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::string text;
  for (int c = std::fgetc(pipe.get()); c != EOF; c = std::fgetc(pipe.get())) text += static_cast<char>(c);
  return text;
}

class HelpPaper : public testing::Test {
 protected:
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
    PdfOutput output(folder.path().toStdString(),
                     [this](const std::string&, const fs::path& file) { files.push_back(file); });
    output.print(document, "Print");
    return files.back();
  }
  QTemporaryDir folder;
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
      EXPECT_NE(text.rfind("\nNext: "), std::string::npos)
          << name << " " << bottom << " ends with " << text.substr(text.size() - 60);
    }
  }
}

TEST_F(HelpPaper, jobsGetFilesOfTheirOwnAndAnUnwritableFolderIsNamed) {
  const fs::path first = written(topic());
  EXPECT_EQ(first.filename(), "POP-OUTLOOKINTEGRATE.pdf");
  EXPECT_EQ(written(topic()).filename(), "POP-OUTLOOKINTEGRATE-2.pdf");
  try {
    writePdf(topic(), "/no such folder/page.pdf");
    ADD_FAILURE() << "written";
  } catch (const Failure& failure) {
    EXPECT_NE(failure.description().find("/no such folder/page.pdf"), std::string::npos);
  }
}

class NoSite : public ViewSite {
 public:
  void act(const std::function<void()>& gesture) override { gesture(); }
  void tabStopsChanged() override {}
};

TEST_F(HelpPaper, browserShowsPagesFollowsLinksAndTakesPicturesFromTheFolderAlone) {
  NoSite site;
  WebBrowser browser("browsePWindow");
  browser.setFolder(HELP_PAGES);
  BrowserView view(browser, site, nullptr);
  browser.Navigate2(fs::path(HELP_PAGES) / "helpindex.htm");
  EXPECT_TRUE(view.toPlainText().contains(QStringLiteral("The Outlook Wizard")));
  Q_EMIT view.anchorClicked(QUrl(QStringLiteral("outlook-tasks.htm#commands")));
  EXPECT_EQ(browser.LocationName(), "outlook-tasks.htm");
  EXPECT_TRUE(view.toPlainText().contains(QStringLiteral("Mark as Done")));

  const fs::path outside = fs::path(folder.path().toStdString()) / "outside.png";
  QImage(4, 4, QImage::Format_RGB32).save(QString::fromStdString(outside.string()));
  EXPECT_FALSE(
      view.loadResource(QTextDocument::ImageResource, QUrl::fromLocalFile(QString::fromStdString(outside.string())))
          .isValid());
  EXPECT_FALSE(
      view.loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("http://example.org/a.png"))).isValid());
}

TEST_F(HelpPaper, pageOfFiveMegabytesIsShown) {
  const fs::path page = fs::path(folder.path().toStdString()) / "long.htm";
  {
    std::ofstream out(page);
    for (int i = 0; i < 50000; ++i) out << "<p>Line " << i << std::string(85, 'x') << "</p>\n";
  }
  NoSite site;
  WebBrowser browser("browsePWindow");
  BrowserView view(browser, site, nullptr);
  browser.Navigate2(page);
  EXPECT_EQ(view.document()->blockCount(), 50000);
}

}  // namespace
}  // namespace tarnel::qt
