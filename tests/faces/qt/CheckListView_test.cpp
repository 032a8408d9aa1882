#include "CheckListView.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QScrollBar>
#include <QSignalSpy>

#include "DemoForm.h"
#include "ItemsModel.h"

namespace tarnel::qt {
namespace {

struct CheckList : testing::Test {
  explicit CheckList(int rows = 8) : shown(rows), list(shown.view<CheckListView>(shown.form.list)) { list.setFocus(); }

  QPoint middleOf(int row) const { return list.visualRect(list.model()->index(row, 0)).center(); }
  QString caption(int row) const { return list.model()->index(row, 0).data().toString(); }
  SmartItem& item(std::size_t row) { return shown.form.list.Items().at(row); }

  ShownForm shown;
  CheckListView& list;
};

struct LongCheckList : CheckList {
  LongCheckList() : CheckList(1000) {}
};

TEST_F(CheckList, clickAfterTheCaptionChecksARowUnlessTheListIsDisabled) {
  const QRect row = list.visualRect(list.model()->index(2, 0));
  for (int i = 0; i < 2; ++i) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(row.right() - 5, row.center().y()));
    EXPECT_TRUE(item(2).Checked());
    shown.form.list.setEnabled(false);
  }
}

TEST_F(LongCheckList, keysWalkAndLettersFind) {
  QTest::keyClick(&list, Qt::Key_End);
  EXPECT_EQ(list.currentIndex().row(), 999);
  QTest::keyClick(&list, Qt::Key_Home);
  QTest::keyClick(&list, Qt::Key_PageDown);
  EXPECT_GT(list.currentIndex().row(), 2);
  item(700).setCaption("Zebra");
  QTest::keyClick(&list, 'z');
  EXPECT_EQ(list.currentIndex().row(), 700);
}

TEST_F(CheckList, captionsAreShownOnOneLineWithDoubledAmpersandsAsOne) {
  item(0).setCaption("Bread && butter & jam");
  item(1).setCaption("First\r\nsecond\tthird");
  item(2).setCaption(std::string(10000, 'x'));
  shown.settle();
  EXPECT_EQ(caption(0), "Bread & butter & jam");
  EXPECT_EQ(caption(1), "First second third");
  EXPECT_EQ(list.model()->index(1, 0).data(Qt::AccessibleDescriptionRole), "in Outlook");
  EXPECT_LT(caption(2).size(), 1000);
  EXPECT_EQ(list.visualRect(list.model()->index(2, 0)).height(), list.visualRect(list.model()->index(0, 0)).height());
}

TEST_F(CheckList, manyAdditionsReachTheViewAsOne) {
  const QAbstractItemModelTester tester(list.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  QSignalSpy insertions(list.model(), &QAbstractItemModel::rowsInserted);
  QSignalSpy changes(list.model(), &QAbstractItemModel::dataChanged);
  for (int i = 8; i < 10000; ++i) shown.form.addRow(i);
  EXPECT_EQ(list.model()->rowCount(), 8);
  shown.settle();
  EXPECT_EQ(list.model()->rowCount(), 10000);
  EXPECT_EQ(insertions.count(), 1);
  for (SmartItem& row : shown.form.list.Items()) row.setChecked(true);
  shown.settle();
  EXPECT_EQ(changes.count(), 1);
}

TEST_F(CheckList, modelStaysSoundWhileItemsComeAndGo) {
  const QAbstractItemModelTester tester(list.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  SmartItems& items = shown.form.list.Items();
  items.Remove("R3");
  items.Remove("R7");
  shown.form.addRow(20);
  items.Item("R20").setChecked(true);
  list.viewport()->repaint();
  shown.settle();
  EXPECT_EQ(list.model()->rowCount(), 7);
  EXPECT_EQ(caption(6), "Row number 20");
  items.Clear();
  list.viewport()->repaint();
  QTest::keyClick(&list, Qt::Key_Space);
  EXPECT_EQ(list.model()->rowCount(), 0);
}

TEST_F(LongCheckList, refillKeepsRowAndPlaceUntilThePositionIsReset) {
  list.setCurrentIndex(list.model()->index(500, 0));
  const int scrolled = list.verticalScrollBar()->value();
  ASSERT_GT(scrolled, 0);
  shown.form.list.Items().Clear();
  for (int i = 0; i < 1000; ++i) shown.form.addRow(i);
  shown.settle();
  EXPECT_EQ(list.currentIndex().row(), 500);
  EXPECT_EQ(list.verticalScrollBar()->value(), scrolled);
  shown.form.list.resetDisplayPosition();
  EXPECT_EQ(list.verticalScrollBar()->value(), 0);
}

TEST_F(CheckList, listenerMayRefillTheListInsideAClick) {
  const Connection onClick = shown.form.list.Click.connect([&](SmartItem&) {
    shown.form.list.Items().Clear();
    shown.form.addRow(1);
    ShownForm::settle();
  });
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middleOf(5));
  shown.settle();
  EXPECT_EQ(list.model()->rowCount(), 1);
}

TEST_F(CheckList, hiddenItemTakesNoRoom) {
  item(1).setVisible(false);
  shown.settle();
  EXPECT_TRUE(list.isRowHidden(1));
  QTest::keyClick(&list, Qt::Key_Home);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(list.currentIndex().row(), 2);
}

}  // namespace
}  // namespace tarnel::qt
