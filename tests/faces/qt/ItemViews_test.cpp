#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include "Conversions.h"
#include "DemoForm.h"
#include "TabsView.h"

namespace tarnel::qt {
namespace {

struct ItemViews : testing::Test {
  QComboBox& dropDown(int number) { return *shown.view(shown.form.picker).findChildren<QComboBox*>().at(number); }
  std::string value(const char* key) { return toText(shown.form.picker.Items().Item(key).Value()); }

  ShownForm shown;
};

TEST_F(ItemViews, whatHasNoRoomOnABarIsInItsLastMenu) {
  std::vector<std::string> pressed;
  const Connection onClick = shown.form.commands.Click.connect([&](SmartItem& item) { pressed.push_back(item.Key()); });
  shown.form.commands.setWidth(2000);
  QPushButton* more = nullptr;
  for (auto* button : shown.view(shown.form.commands).findChildren<QPushButton*>())
    if (button->accessibleName() == "More commands") more = button;
  ASSERT_TRUE(more && more->isVisible());
  EXPECT_EQ(shown.view(shown.form.commands).findChildren<QPushButton*>().last(), more) << "the last tab stop";
  EXPECT_FALSE(shown.button(shown.form.commands, "Copy/Update")->isVisible());
  QMetaObject::invokeMethod(more->menu(), "aboutToShow");
  more->menu()->actions().last()->trigger();
  EXPECT_EQ(pressed, std::vector<std::string>{"Copy/Update"});
  shown.form.commands.setWidth(6000);
  EXPECT_FALSE(more->isVisible());
}

TEST_F(ItemViews, hiddenCommandsAndDisabledTabsAreOutOfReach) {
  auto& tabs = shown.view<TabsView>(shown.form.tabs);
  for (const bool open : {false, true}) {
    shown.form.commands.Items().Item("All").setVisible(open);
    shown.form.tabs.setTabEnabled(1, open);
    shown.settle();
    EXPECT_EQ(shown.button(shown.form.commands, "All")->isVisible(), open);
    EXPECT_EQ(tabs.isTabEnabled(1), open);
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
    EXPECT_EQ(tabs.currentIndex(), open ? 1 : 0);
  }
}

TEST_F(ItemViews, menuButtonPressesItsItemAndItsArrowOpensTheEntries) {
  std::string pressed;
  const Connection onClick = shown.form.actions.Click.connect([&](SmartItem& item) { pressed = item.Key(); });
  QWidget* button = shown.button(shown.form.actions, "&More");
  const auto* entries = button->findChild<QMenu*>();
  QTest::mouseClick(button, Qt::LeftButton, {}, {5, 5});
  EXPECT_EQ(pressed, "MORE");
  QTest::mouseClick(button, Qt::LeftButton, {}, {button->width() - 3, 5});
  ASSERT_TRUE(entries->isVisible());
  ASSERT_EQ(entries->actions().size(), 1);
  EXPECT_FALSE(entries->actions().first()->icon().isNull());
  entries->actions().first()->trigger();
  EXPECT_EQ(pressed, "PRINT");
}

TEST_F(ItemViews, arrowKeysWalkEntriesPastHeadingsAndCheckEntries) {
  QComboBox& sort = dropDown(1);
  sort.setFocus();
  QTest::keyClick(&sort, Qt::Key_Down);
  EXPECT_EQ(value("SORTPICK"), "Task Description A to Z");
  QTest::keyClick(&sort, Qt::Key_Down);
  EXPECT_EQ(value("SORTPICK"), "Deadline Later to Now");
  QTest::keyClick(&sort, Qt::Key_Home);
  EXPECT_EQ(sort.currentText(), "Possible Points High to Low");
}

TEST_F(ItemViews, checkEntryIsChosenWithoutBecomingTheValue) {
  SmartItem& sort = shown.form.picker.Items().Item("SORTPICK");
  const Connection onChange = shown.form.picker.Change.connect([&](SmartItem& item, const std::string&) {
    if (toText(item.Value()) == "Completed Tasks") item.SubItems().Item("D37").setChecked(true);
  });
  QComboBox& combo = dropDown(1);
  combo.activated(3);
  shown.settle();
  EXPECT_EQ(toText(sort.Value()), "Possible Points High to Low");
  EXPECT_EQ(combo.currentText(), "Possible Points High to Low");
  EXPECT_EQ(combo.itemData(3, Qt::CheckStateRole).toInt(), Qt::Checked);
  EXPECT_FALSE(combo.model()->flags(combo.model()->index(2, 0)) & Qt::ItemIsEnabled);
}

TEST_F(ItemViews, dropDownFollowsItsEntriesAndShowsAValueWithoutEntry) {
  SmartItem& tasks = shown.form.picker.Items().Item("TASKPICK");
  for (int i = 0; i < 5000; ++i) {
    const std::string name = "Project " + std::to_string(i);
    tasks.SubItems().Add(0, name, name, SmartItemType::dropDownEntry);
  }
  tasks.setValue(std::string("Project 4321"));
  shown.settle();
  EXPECT_EQ(dropDown(0).currentText(), "Project 4321");
  tasks.SubItems().Clear();
  shown.settle();
  EXPECT_EQ(dropDown(0).count(), 0);
  EXPECT_EQ(dropDown(0).placeholderText(), "Project 4321");
}

TEST_F(ItemViews, optionsShowTheirItemsAndNotesTheirValues) {
  SmartItems& items = shown.form.settings.Items();
  auto* four = shown.button(shown.form.settings, "[4] Automatically");
  QTest::mouseClick(four, Qt::LeftButton);
  EXPECT_TRUE(items.Item("TASK4").Checked());
  EXPECT_FALSE(items.Item("TASK3").Checked());
  items.Item("TASK3").setChecked(true);
  EXPECT_FALSE(four->isChecked());
  items.Item("NOTE").setValue(std::string("Less < more"));
  bool shownNote = false;
  for (const auto* label : shown.view(shown.form.settings).findChildren<QLabel*>())
    shownNote = shownNote || label->text().contains("Less &lt; more");
  EXPECT_TRUE(shownNote);

  // In a low window the focus brings its place into sight, wherever it comes from.
  shown.form.settings.Move(4100, 360, 4200, 600);
  for (const char* reached : {"PRO1", "TASK4"}) {
    shown.view(shown.form.tabs).setFocus();
    auto* field = shown.view(shown.form.settings).findChild<QWidget*>(reached);
    field->setFocus();
    EXPECT_FALSE(field->visibleRegion().isEmpty()) << reached;
  }
}

TEST_F(ItemViews, itemsMayGoInsideTheirOwnEvents) {
  SmartItems& items = shown.form.settings.Items();
  const Connection onClick = shown.form.settings.Click.connect([&](SmartItem& item) {
    if (item.Key() != "TASK4") return;
    items.Remove("TASK4");
    items.Remove("PRO1");
    items.Add(0, "OUT2PROJECT", "Move tasks to:", SmartItemType::dropDown).SubItems();
    ShownForm::settle();
  });
  const QString caption = "[4] Automatically";
  QTest::mouseClick(shown.button(shown.form.settings, caption), Qt::LeftButton);
  const auto combos = shown.view(shown.form.settings).findChildren<QComboBox*>();
  ASSERT_FALSE(combos.empty());
  EXPECT_EQ(combos.last()->accessibleName(), "Move tasks to:");
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(shown.button(shown.form.settings, caption), nullptr);
}

}  // namespace
}  // namespace tarnel::qt
