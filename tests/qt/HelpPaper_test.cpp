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
  // Left, right, top and bottom-most points that anything is written at, and the paper's size: xMin, xMax, yMin, yMax.
  static std::array<double, 6> extent(const fs::path& pdf) {
    const std::string text = outputOf("pdftotext -bbox '" + pdf.string() + "' -");
    std::array<double, 6> found{1e9, 0, 1e9, 0, 0, 0};
    std::smatch page;
    if (std::regex_search(text, page, std::regex("<page width=\"([0-9.]+)\" height=\"([0-9.]+)\"")))
      found[4] = std::stod(page[1]), found[5] = std::stod(page[2]);
    const std::regex word("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\"");
    for (std::sregex_iterator at(text.begin(), text.end(), word), end; at != end; ++at) {
      found[0] = std::min(found[0], std::stod((*at)[1]));
      found[1] = std::max(found[1], std::stod((*at)[3]));
      found[2] = std::min(found[2], std::stod((*at)[2]));
      found[3] = std::max(found[3], std::stod((*at)[4]));
    }
    return found;
  }

  QTemporaryDir folder;
  std::vector<fs::path> files;
};

TEST_F(HelpPaper, topicPrintsWithFooterAndPageNumbersInsideItsMargins) {
  Document document = topic();
  std::vector<std::pair<int, int>> steps;
  document.progress = [&](int done, int total) { steps.emplace_back(done, total); };
  const fs::path pdf = written(document);
  const std::string text = outputOf("pdftotext -layout '" + pdf.string() + "' -");
  EXPECT_NE(text.find("The Outlook Wizard"), std::string::npos) << text;
  EXPECT_NE(text.find("Leaving the wizard"), std::string::npos) << text;
  ASSERT_GE(steps.size(), 2U);
  EXPECT_EQ(steps.back(), (std::pair{static_cast<int>(steps.size()), static_cast<int>(steps.size())}));
  for (std::size_t page = 1; page <= steps.size(); ++page) {
    const std::regex footer("Printed 11/19/2026 +Page " + std::to_string(page) + "\n");
    EXPECT_TRUE(std::regex_search(text, footer)) << page;
  }
  const auto [left, right, top, bottom, width, height] = extent(pdf);
  const double point = 1;
  EXPECT_NEAR(left, 1134 / 20.0, point);
  EXPECT_NEAR(right, width - 1701 / 20.0, 2 * point);
  EXPECT_GE(top, 1418 / 20.0 - point);
  EXPECT_LE(bottom, height - 850 / 20.0 + point);
  EXPECT_GE(bottom, height - 850 / 20.0 - 6 * point) << "the footer stands on the bottom margin";
}

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

TEST_F(HelpPaper, marginsThatLeaveNoRoomAreReplaced) {
  constexpr int most = std::numeric_limits<int>::max();
  const auto sane = [](int first, int second) {
    const EdgePair pair = saneMargins(first, second, 11906);
    return std::pair{pair.first, pair.second};
  };
  EXPECT_EQ(sane(1134, 850), (std::pair{1134, 850}));
  EXPECT_EQ(sane(0, -5), (std::pair{284, 284}));
  EXPECT_EQ(sane(5000, 5000), (std::pair{1134, 1134}));
  EXPECT_EQ(sane(most, most), (std::pair{1134, 1134}));
  Document document = topic();
  document.margins = {most, 0, most, most};
  document.footerSize = 4000;
  EXPECT_NE(outputOf("pdftotext '" + written(document).string() + "' -").find("The three tabs"), std::string::npos);
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
  browser.GoBack();
  EXPECT_TRUE(view.toPlainText().contains(QStringLiteral("Help Index")));

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
