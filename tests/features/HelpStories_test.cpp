#include <regex>

#include "Story.h"

namespace tarnel::test {
namespace {

// The help popup and what it puts on paper, where there is neither screen nor printer.
struct HelpStories : Story {
  void SetUp() override {
    if (std::system("command -v pdftotext >/dev/null") != 0) GTEST_SKIP() << "pdftotext reads the printed pages back";
  }
  // The commands inside the popup; the settings' entries by "|".
  ProgramResult help(const std::string& commands, const std::string& settings) const {
    std::string argument = settings;
    for (std::size_t at = 0; (at = argument.find('|', at)) != std::string::npos;) argument.replace(at, 1, "\\t");
    return run(std::string(drivingArguments) + " --print-settings \"$(printf '" + argument + "')\"",
               "click smtActions HELP\n" + commands);
  }
  // What pdftotext reads of a printed page.
  std::string read(const std::string& options, const std::string& pdf) const {
    std::system(("cd '" + run.home.path().string() + "' && pdftotext " + options + " '" + pdf + "' read.txt").c_str());
    return contentsOf(run.home / "read.txt");
  }
  // Left, top, right and bottom edge of all that is written, in points, from the paper's own edges.
  struct Edges {
    double left = 1e9, top = 1e9, right = 1e9, bottom = 1e9;
  };
  Edges edges(const std::string& pdf) const {
    const std::string text = read("-bbox", pdf);
    std::smatch page;
    EXPECT_TRUE(std::regex_search(text, page, std::regex("<page width=\"([0-9.]+)\" height=\"([0-9.]+)\"")));
    Edges found;
    const std::regex word("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\"");
    for (std::sregex_iterator at(text.begin(), text.end(), word), end; at != end; ++at) {
      found.left = std::min(found.left, std::stod((*at)[1]));
      found.top = std::min(found.top, std::stod((*at)[2]));
      found.right = std::min(found.right, std::stod(page[1]) - std::stod((*at)[3]));
      found.bottom = std::min(found.bottom, std::stod(page[2]) - std::stod((*at)[4]));
    }
    return found;
  }

  const std::string rest = "HCOLOR=0|HSIZE=10|FCOLOR=0|FFONT=Serif|FSIZE=9|FLEFT=Tarnel - Version 9|FRIGHT=<#>|";
  const std::string print = "answer yes\nclick smtAction PRINT\n";
  static constexpr double point = 1;
  static constexpr double centimetre = 567 / 20.0;
  const double least = 284 / 20.0;  // half a centimetre, the narrowest margin that printers know
};

TEST_F(HelpStories, topicPrintsWithTextFooterPageNumbersAndMargins) {
  const auto result = help(print + "answer yes\nclick smtAction PRINTPREVIEW\nclick smtAction CLOSE\n",
                           "TOP=3|BOTTOM=2|RIGHT=4|LEFT=2.5|" + rest);
  EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
  const std::string text = read("-layout", "POP-OUTLOOKINTEGRATE.pdf");
  int page = 0;
  for (std::size_t at = 0, end; (end = text.find('\f', at)) != std::string::npos; at = end + 1) {
    const std::string one = text.substr(at, end - at);
    EXPECT_TRUE(std::regex_search(one, std::regex("Tarnel - Version 1.14 +" + std::to_string(++page) + "\\s*$")))
        << one;
  }
  EXPECT_GE(page, 2);
  for (const char* words : {"The Outlook Wizard", "copy, step by step", "Questions and answers"})
    EXPECT_NE(text.find(words), std::string::npos) << words;
  const Edges found = edges("POP-OUTLOOKINTEGRATE.pdf");
  EXPECT_NEAR(found.left, 2.5 * centimetre, 2 * point);
  EXPECT_GE(found.right, 4 * centimetre - point);
  EXPECT_GE(found.top, 3 * centimetre - point);
  EXPECT_NEAR(found.bottom, 2 * centimetre, 4 * point);
  EXPECT_NE(read("-layout", "POP-OUTLOOKINTEGRATE-2.pdf").find("Tarnel - Version 9"), std::string::npos);
}

TEST_F(HelpStories, badPrintSettingsStillPrintASanePage) {
  const struct {
    std::string settings;
    bool reported;
    double left;  // centimetres
  } bad[] = {{"", true, 0.5},
             {"TOP=wide|BOTTOM=2|RIGHT=2|LEFT=3|" + rest, true, 0.5},
             {"TOP=2|BOTTOM=2|RIGHT=2|LEFT=3|HCOLOR=red|", true, 3},
             {"TOP=99|BOTTOM=99|RIGHT=99|LEFT=99|" + rest, false, 2},
             {"TOP=-3|BOTTOM=0|RIGHT=0|LEFT=-1|" + rest, false, 0.5}};
  for (const auto& each : bad) {
    const auto result = help(print, each.settings);
    const std::string report = "reports: MakeHelpHTML 13\n";
    EXPECT_EQ(told(result).find(report) != std::string::npos, each.reported) << each.settings << told(result);
    EXPECT_EQ(result.exitCode, each.reported ? 1 : 0);
    EXPECT_NE(read("", "POP-OUTLOOKINTEGRATE.pdf").find("Leaving the wizard"), std::string::npos) << each.settings;
    const Edges found = edges("POP-OUTLOOKINTEGRATE.pdf");
    EXPECT_NEAR(found.left, each.left * centimetre, 2 * point) << each.settings;
    EXPECT_GE(std::min({found.top, found.right, found.bottom}), least - point) << each.settings;
    std::filesystem::remove(run.home / "POP-OUTLOOKINTEGRATE.pdf");
  }
}

TEST_F(HelpStories, linksLeadThroughTheFolderAndNeverOutOfIt) {
  const auto result = help("follow http://example.org/\nfollow ../../etc/passwd\nfollow outlook-tasks.htm#commands\n" +
                               print + "click smtAction BACK\n" + print + "click smtAction BACK\n",
                           "TOP=2|BOTTOM=2|RIGHT=2|LEFT=2|" + rest);
  const std::string refused = "says: This link leads to no page of the help folder and is not followed:/";
  const std::string text = told(result);
  EXPECT_EQ(text.find(refused + "http://example.org/\n" + refused + "../../etc/passwd\n"), 0U) << text;
  EXPECT_NE(text.find("error: click smtAction BACK"), std::string::npos) << "on the first page nothing leads back";
  EXPECT_NE(read("", "outlook-tasks.pdf").find("The Tasks tab"), std::string::npos);
  EXPECT_TRUE(std::filesystem::exists(run.home / "POP-OUTLOOKINTEGRATE.pdf"));
}

}  // namespace
}  // namespace tarnel::test
