#include "HelpTopics.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "HtmlFile.h"
#include "PageLink.h"

namespace tarnel {
namespace {

TEST(HelpTopics, numbersLeadToTheirTopicsAndNoOthers) {
  ASSERT_TRUE(findHelpTopic(0));
  EXPECT_EQ(findHelpTopic(7), findHelpTopic(0));
  EXPECT_NE(findHelpTopic(8), findHelpTopic(0));
  for (const std::int32_t none : {-1, -250, 11, 201, 501, 7001, 2147483647}) EXPECT_FALSE(findHelpTopic(none)) << none;
}

// What an href or src of a page names, in order.
std::vector<std::string> named(const std::string& html, const std::string& attribute) {
  std::vector<std::string> values;
  const std::string lead = attribute + "=\"";
  for (std::size_t at = html.find(lead); at != std::string::npos; at = html.find(lead, at + 1)) {
    const std::size_t start = at + lead.size();
    values.push_back(html.substr(start, html.find('"', start) - start));
  }
  return values;
}

TEST(HelpPages, everyTopicHasItsPageAndAllThatPagesNameIsThere) {
  const std::filesystem::path folder = HELP_PAGES;
  for (std::int32_t number = 0; number <= 7000; ++number) {
    const HelpTopic* topic = findHelpTopic(number);
    EXPECT_TRUE(!topic || std::filesystem::exists(folder / topic->file)) << number;
  }
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    const std::string html = readHtmlFile(entry.path());
    for (const std::string& link : named(html, "<a href")) {
      const auto target = resolveLink(link, entry.path(), folder);
      ASSERT_TRUE(target) << entry.path() << " leads to " << link;
      EXPECT_TRUE(std::filesystem::exists(target->file)) << entry.path() << " leads to " << link;
      const bool placed = readHtmlFile(target->file).find("name=\"" + target->anchor + "\"") != std::string::npos;
      EXPECT_TRUE(target->anchor.empty() || placed) << entry.path() << " leads to " << link;
    }
    for (const char* attribute : {"src", "type=\"text/css\" href"})
      for (const std::string& file : named(html, attribute))
        EXPECT_TRUE(std::filesystem::exists(folder / file)) << entry.path() << " needs " << file;
  }
}

}  // namespace
}  // namespace tarnel
