#include "HelpPrintSettings.h"

#include <gtest/gtest.h>

#include <sstream>

#include "FailureOf.h"

namespace tarnel::test {
namespace {

std::string described(const HelpPrintSettings& s) {
  std::ostringstream out;
  out << s.TOP << ' ' << s.BOTTOM << ' ' << s.RIGHT << ' ' << s.LEFT << ' ' << s.FCOLOR << " [" << s.FFONT << "] "
      << s.FSIZE << " [" << s.FLEFT << "] [" << s.FRIGHT << "]";
  return out.str();
}

// All keys in the host's order, with `changed` instead of its own value.
CStringBag bag(const std::string& changedKey = {}, const std::string& value = {}) {
  CStringBag settings;
  const std::vector<std::pair<std::string, std::string>> entries{
      {"PRINTER", "Office"}, {"COPIES", ""},  {"PAPER", "A4"},   {"TOP", "2.5"},   {"BOTTOM", "2"}, {"RIGHT", "1.5"},
      {"LEFT", "1"},         {"HCOLOR", "0"}, {"HFONT", "S"},    {"HSIZE", "10"},  {"HEADING", ""}, {"FCOLOR", "255"},
      {"FFONT", "Serif"},    {"FSIZE", "9"},  {"FLEFT", "left"}, {"FRIGHT", "<#>"}};
  std::string text;
  for (const auto& [key, usual] : entries) text += key + "=" + (key == changedKey ? value : usual) + "\t";
  return CStringBag(text);
}

TEST(HelpPrintSettings, readsAllKeysAndNeedsNoCopies) {
  HelpPrintSettings settings;
  settings.read(bag());
  EXPECT_EQ(described(settings), "2.5 2 1.5 1 255 [Serif] 9 [left] [<#>]");
}

TEST(HelpPrintSettings, keysAfterAFaultyOneStayAsTheyWere) {
  const struct {
    const char* key;
    const char* value;
    std::int32_t number;
    const char* left;
  } faults[] = {
      {"COPIES", "two", 13, "9 9 9 9 9 [F] 9 [L] [R]"},
      {"TOP", "", 13, "9 9 9 9 9 [F] 9 [L] [R]"},
      {"RIGHT", "wide", 13, "2.5 2 9 9 9 [F] 9 [L] [R]"},
      {"HSIZE", "", 13, "2.5 2 1.5 1 9 [F] 9 [L] [R]"},
      {"FSIZE", "big", 13, "2.5 2 1.5 1 255 [Serif] 9 [L] [R]"},
      {"FCOLOR", "99999999999", 6, "2.5 2 1.5 1 9 [F] 9 [L] [R]"},
      {"BOTTOM", "1e99", 6, "2.5 9 9 9 9 [F] 9 [L] [R]"},
  };
  for (const auto& fault : faults) {
    HelpPrintSettings settings{9, 9, 9, 9, 9, "F", 9, "L", "R"};
    const auto failure = thrownBy([&] { settings.read(bag(fault.key, fault.value)); });
    ASSERT_TRUE(failure) << fault.key;
    EXPECT_EQ(failure->number(), fault.number) << fault.key;
    EXPECT_TRUE(contains(failure->description(),
                         std::string("the print setting ") + fault.key + " is \"" + fault.value + "\""));
    EXPECT_EQ(described(settings), fault.left) << fault.key;
  }
}

TEST(HelpPrintSettings, footerCodesBecomeTheirTextsAndOthersStay) {
  const Date now = Date::of(2026, 11, 19, 8, 5, 7);
  const auto shown = [&](const char* code) { return footerText(code, Locale(), now); };
  EXPECT_EQ(shown("--Short Date--"), "11/19/2026");
  EXPECT_EQ(shown("--Long Date--"), "Thursday, November 19, 2026");
  EXPECT_EQ(shown("--Date Time--"), "11/19/2026 08:05");
  EXPECT_EQ(shown("--Long Date and Time--"), "Thursday, November 19, 2026 08:05:07");
  EXPECT_EQ(shown("Page Number"), "{PageNum}");
  EXPECT_EQ(shown("<#>"), "{PageNum}");
  for (const char* other : {"", "--short date--", "Page Number ", "My tasks <#>"}) EXPECT_EQ(shown(other), other);
  EXPECT_EQ(footerTemplate(shown("--Short Date--"), shown("Page Number")),
            "{newline}{line}{Left}11/19/2026{Right}{PageNum}");
}

}  // namespace
}  // namespace tarnel::test
