#include "ItemText.h"

#include <gtest/gtest.h>

#include "SmartUI.h"
#include "SqlText.h"
#include "TestPlatform.h"

namespace tarnel {
namespace {

TEST(ItemText, doublesAmpersandsOnly) {
  EXPECT_EQ(ZapAmps("Cut & dry && done"), "Cut && dry &&&& done");
  EXPECT_EQ(ZapAmps(""), "");
}

TEST(ItemText, quotesWithoutDoublingInside) { EXPECT_EQ(Quote("a\"b"), "\"a\"b\""); }

TEST(ItemText, aNullCannotBeQuoted) {
  test::TestPlatform platform;
  EXPECT_EQ(Quote(Null{}), "");
  ASSERT_EQ(platform.errorReport.reports.size(), 1U);
  EXPECT_EQ(platform.errorReport.reports[0].procedure, "Quote");
  EXPECT_EQ(platform.errorReport.reports[0].number, 94);
}

TEST(ItemText, theFirstEntryWithTheChosenCaptionIsTheSelectedOne) {
  SmartUI bar("bar", SmartUI::Look::form);
  SmartItem& item = bar.Items().Add(0, "PICK", "Pick", ItemType::dropDown);
  EXPECT_EQ(GetItemSelected(item), nullptr);
  item.SubItems().Add(0, "T00", "Current", ItemType::dropDownEntry);
  item.SubItems().Add(0, "P1", "Current", ItemType::dropDownEntry);
  EXPECT_EQ(GetItemSelected(item), nullptr);
  item.setValue("Current");
  EXPECT_EQ(GetItemSelected(item)->Key(), "T00");
}

TEST(SqlText, doublesSingleQuotes) { EXPECT_EQ(sqlText("it's ''"), "'it''s '''''"); }

}  // namespace
}  // namespace tarnel
