#include "DayScheduleView.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDateEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include "DropDateView.h"
#include "FormWindow.h"
#include "QtDate.h"

namespace tarnel::qt {
namespace {

constexpr std::int32_t day = 46345;

class ScheduleForm : public Form {
 public:
  ScheduleForm() : Form("frmSchedule", "Schedules") {
    Move(1500, 1500, 9100, 6460);
    for (ctMDay* schedule : {&left, &right}) {
      schedule->setShowDate({static_cast<double>(day)});
      addControl(*schedule);
    }
    left.Move(0, 450, 4500, 5500);
    right.Move(4500, 450, 4500, 5500);
    addControl(date);
    date.Move(0, 0, 3000, 300);
    date.setDate({static_cast<double>(day)});
  }
  ctMDay left{"ctDaySked", 0};
  ctMDay right{"ctDaySked", 1};
  ctDropDate date{"ctDeadline"};
};

struct DaySchedule : testing::Test {
  DaySchedule() : window(form, ViewFactory(), nullptr) {
    form.load();
    window.present();
    QApplication::processEvents();
  }
  DayScheduleView& view(const ctMDay& schedule) { return dynamic_cast<DayScheduleView&>(*window.view(schedule)); }
  DayScheduleView& left() { return view(form.left); }
  void click(DayScheduleView& schedule, std::int16_t index) {
    QTest::mouseClick(schedule.viewport(), Qt::LeftButton, {}, schedule.placeOf(index).center());
  }

  ScheduleForm form;
  FormWindow window;
};

TEST_F(DaySchedule, overlappingAppointmentsShareTheWidthAndOthersHaveItWhole) {
  form.left.AppAdd(540, 660, day, "A", "");
  form.left.AppAdd(600, 720, day, "B", "");
  form.left.AppAdd(660, 690, day, "C", "");
  form.left.AppAdd(780, 840, day, "D", "");
  const QRect a = left().placeOf(1), b = left().placeOf(2), c = left().placeOf(3), d = left().placeOf(4);
  EXPECT_LT(a.right(), b.left());
  EXPECT_EQ(c.left(), a.left());
  EXPECT_GT(c.top(), a.bottom());
  EXPECT_GT(d.width(), 2 * a.width());
  EXPECT_EQ(b.height(), 2 * ScheduleLayout::rowHeight - 1);
}

TEST_F(DaySchedule, onlyTheDaysHoursAreShown) {
  form.left.AppAdd(60, 120, day, "Night", "");
  form.left.AppAdd(420, 540, day, "Across the start", "");
  form.left.AppAdd(600, 660, day + 1, "Other day", "");
  form.left.AppAdd(60, 120, day, "Holiday", "");
  form.left.setAppAllDay(4, true);
  form.left.setDayStart(480);
  form.left.setDayEnd(1020);
  form.left.setTimeScale(2);
  form.left.Redraw(true);
  EXPECT_TRUE(left().placeOf(1).isNull());
  EXPECT_EQ(left().placeOf(2).height(), 4 * ScheduleLayout::rowHeight - 1);
  EXPECT_TRUE(left().placeOf(3).isNull());
  EXPECT_LT(left().placeOf(4).bottom(), left().placeOf(2).top());
}

TEST_F(DaySchedule, clickAndSpaceSelectWhatIsThere) {
  std::vector<int> selected;
  const Connection onSelect = form.left.AppSelect.connect([&](std::int16_t index) { selected.push_back(index); });
  form.left.AppAdd(600, 660, day, "Second", "");
  form.left.AppAdd(540, 600, day, "First", "");
  click(left(), 1);
  left().setFocus();
  QTest::keyClick(&left(), Qt::Key_Up);
  EXPECT_EQ(left().current(), 2);
  EXPECT_TRUE(left().accessibleDescription().endsWith("First"));
  QTest::keyClick(&left(), Qt::Key_Space);
  QTest::mouseClick(left().viewport(), Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_EQ(selected, (std::vector<int>{1, 2}));
  form.left.AppClear();
  QTest::keyClick(&left(), Qt::Key_Space);
  EXPECT_EQ(selected.size(), 2U);
}

TEST_F(DaySchedule, bothSidesStayLevel) {
  form.left.AppAdd(540, 600, day, "A", "");
  form.right.AppAdd(540, 600, day, "B", "");
  form.right.AppAdd(0, 1439, day, "Holiday", "");
  form.right.setAppAllDay(2, true);
  QApplication::processEvents();
  EXPECT_EQ(left().placeOf(1).top(), view(form.right).placeOf(1).top());
  view(form.right).verticalScrollBar()->setValue(0);
  EXPECT_EQ(left().verticalScrollBar()->value(), 0);
  EXPECT_EQ(left().placeOf(1).top(), view(form.right).placeOf(1).top());
}

TEST_F(DaySchedule, dayOfMinuteRowsWithManyAppointmentsIsDrawn) {
  form.left.setUseCustomScale(1);
  form.left.setCustomScale(1);
  form.left.Redraw(true);
  for (std::int16_t i = 0; i < 300; ++i) form.left.AppAdd(i, i, day, "Short", "");
  left().verticalScrollBar()->setValue(0);
  EXPECT_FALSE(left().grab().isNull());
  EXPECT_EQ(left().verticalScrollBar()->maximum() + left().verticalScrollBar()->pageStep(),
            1439 * ScheduleLayout::rowHeight);
}

TEST_F(DaySchedule, dateBoxChoosesDaysByButtonsAndTyping) {
  auto& view = dynamic_cast<DropDateView&>(*window.view(form.date));
  const auto press = [&view](const char* name) {
    for (auto* button : view.findChildren<QPushButton*>())
      if (button->accessibleName() == name) button->click();
  };
  press("Day after");
  EXPECT_EQ(form.date.Date().days, day + 1);
  press("Day before");
  press("Day before");
  EXPECT_EQ(form.date.Date().days, day - 1);
  press("Today");
  EXPECT_EQ(toQDate(form.date.Date()), QDate::currentDate());
  view.edit().setDate(QDate(2026, 11, 19));
  EXPECT_EQ(form.date.Date(), Date::of(2026, 11, 19));
  form.date.setDate(Date::of(2027, 1, 2));
  EXPECT_EQ(view.edit().date(), QDate(2027, 1, 2));
}

}  // namespace
}  // namespace tarnel::qt
