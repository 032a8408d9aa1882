#include "SmartUI.h"

#include <gtest/gtest.h>

#include "FailureOf.h"

namespace tarnel::test {
namespace {

struct SmartUIs : testing::Test {
  SmartItem& add(const char* key, SmartItemType type) { return control.Items().Add(0, key, key, type); }

  SmartUI control{"smtTaskList", 0, SmartUI::Look::checkList};
  SmartItems& items = control.Items();
  std::string log;
  Connection click = control.Click.connect([this](SmartItem& item) { log += "click " + item.Key() + "; "; });
  Connection change = control.Change.connect(
      [this](SmartItem& item, const std::string& what) { log += what + " " + item.Key() + "; "; });
};

TEST_F(SmartUIs, itemsKeepTheirPlacesAndKeys) {
  add("a", SmartItemType::checkRow);
  add("b", SmartItemType::checkRow);
  items.Add(items.Count(), "c", "c", SmartItemType::checkRow);
  add("", SmartItemType::separator);
  add("", SmartItemType::separator);
  items.Remove("b");
  EXPECT_EQ(items.Item("c").Index(), 1U);
  EXPECT_EQ(items.at(1).Key(), "c");
  EXPECT_EQ(items.Count(), 4U);
  EXPECT_FALSE(items.Exists("b"));
  EXPECT_FALSE(items.Exists("A")) << "keys are compared exactly";
  items.Clear();
  EXPECT_FALSE(items.Exists("a"));
  add("a", SmartItemType::checkRow);
}

TEST_F(SmartUIs, misuseFailsAndChangesNothingAndLastItemIsTheOneAddedLast) {
  EXPECT_EQ(failureOf([&] { control.LastItem(); }), failure::objectNotSet);
  add("a", SmartItemType::checkRow);
  EXPECT_EQ(failureOf([&] { add("a", SmartItemType::button); }), failure::keyNotUnique);
  EXPECT_EQ(failureOf([&] { items.Add(2, "b", "", SmartItemType::button); }), failure::invalidCall);
  EXPECT_EQ(failureOf([&] { items.Item("b"); }), failure::invalidCall);
  EXPECT_EQ(failureOf([&] { items.Remove("b"); }), failure::invalidCall);
  EXPECT_EQ(failureOf([&] { items.at(1); }), failure::subscript);
  EXPECT_EQ(items.Count(), 1U);
  EXPECT_EQ(&control.LastItem(), &items.Item("a"));
  SmartItem& entry = items.Item("a").SubItems().Add(0, "T00", "Current Tasks", SmartItemType::dropDownEntry);
  EXPECT_EQ(&control.LastItem(), &entry);
  items.Remove("a");
  EXPECT_EQ(failureOf([&] { control.LastItem(); }), failure::objectNotSet);
}

TEST_F(SmartUIs, checkingAnOptionUnchecksItsGroupAlone) {
  add("g1", SmartItemType::group);
  add("1a", SmartItemType::option).setChecked(true);
  add("1b", SmartItemType::option);
  add("note", SmartItemType::note);
  add("g2", SmartItemType::group);
  add("2a", SmartItemType::option).setChecked(true);
  log.clear();
  control.press(items.Item("1b"));
  EXPECT_EQ(log, "Checked 1a; Checked 1b; click 1b; ");
  EXPECT_FALSE(items.Item("1a").Checked());
  EXPECT_TRUE(items.Item("2a").Checked());
  log.clear();
  control.press(items.Item("1b"));
  EXPECT_EQ(log, "click 1b; ");
}

TEST_F(SmartUIs, pressDoesWhatItsKindDoesAndNothingUnseen) {
  add("row", SmartItemType::checkRow);
  add("text", SmartItemType::label);
  add("button", SmartItemType::button);
  control.press(items.Item("row"));
  control.press(items.Item("text"));
  control.press(items.Item("button"));
  EXPECT_EQ(log, "Checked row; click row; click button; ");
  log.clear();
  items.Item("row").setVisible(false);
  control.press(items.Item("row"));
  control.setEnabled(false);
  control.press(items.Item("button"));
  EXPECT_EQ(log, "");
}

TEST_F(SmartUIs, chosenEntryBecomesTheValueButACheckEntryDoesNot) {
  SmartItem& pick = add("SORT", SmartItemType::dropDown);
  SmartItem& heading = pick.SubItems().Add(0, "D0A4", "Include", SmartItemType::group);
  SmartItem& entry = pick.SubItems().Add(0, "D00", "High to Low", SmartItemType::dropDownEntry);
  SmartItem& done = pick.SubItems().Add(0, "D37", "Completed Tasks", SmartItemType::checkRow);
  control.choose(pick, entry);
  std::string during;
  const Connection sees =
      control.Change.connect([&](SmartItem& item, const std::string&) { during = *item.Value().get<std::string>(); });
  control.choose(pick, done);
  control.choose(pick, done);
  control.choose(pick, heading);
  EXPECT_EQ(log, "Value SORT; Value SORT; Value SORT; ");
  EXPECT_EQ(during, "Completed Tasks");
  EXPECT_EQ(pick.Value(), Variant("High to Low"));
}

}  // namespace
}  // namespace tarnel::test
