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

struct ScheduleForm : Form {
  ScheduleForm() : Form("frmSchedule", "Schedules") {
    Move(1500, 1500, 9100, 6460);
    for (ctMDay* schedule : {&left, &right}) {
      schedule->setShowDate({static_cast<double>(day)});
      addControl(*schedule);
    }
    left.Move(0, 450, 4500, 5500);
    right.Move(4500, 480, 4500, 5500);
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

TEST_F(DaySchedule, theFirstRowAndTheFirstOfEachHourBearTheHour) {
  const auto hourRows = [this](std::int32_t start, std::int32_t scale) {
    form.left.setDayStart(start);
    form.left.setDayEnd(start + 150);
    form.left.setTimeScale(scale);
    const ScheduleLayout layout(form.left, 400);
    std::string rows;
    for (int row = 0; row < layout.rows(); ++row) rows += layout.startsHour(row) ? 'H' : '-';
    return rows;
  };
  EXPECT_EQ(hourRows(480, 4), "HHH");
  EXPECT_EQ(hourRows(495, 4), "HHH");
  EXPECT_EQ(hourRows(480, 3), "H-H-H");
  EXPECT_EQ(hourRows(495, 3), "H-H-H");
  EXPECT_EQ(hourRows(510, 3), "HH-H-");
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
  const Connection onSelect = form.left.AppSelect.connect([&](std::int16_t index) {
    selected.push_back(index);
    form.left.setAppMarkImage(index, 1);
  });
  form.left.AppAdd(600, 660, day, "Second", "");
  form.left.AppAdd(540, 600, day, "First", "");
  click(left(), 1);
  EXPECT_TRUE(left().accessibleDescription().contains("selected"));
  left().setFocus();
  const auto shown = [&] { return left().viewport()->grab(left().placeOf(1)).toImage(); };
  const QImage marked = shown();
  form.left.setAppMarkImage(1, 0);
  EXPECT_NE(shown(), marked);
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

TEST_F(DaySchedule, bothSidesStayLevelThoughOneIsLower) {
  form.left.AppAdd(540, 600, day, "A", "");
  form.right.AppAdd(540, 600, day, "B", "");
  form.right.AppAdd(0, 1439, day, "Holiday", "");
  form.right.setAppAllDay(2, true);
  QApplication::processEvents();
  const auto height = [](DayScheduleView& schedule) {
    return schedule.viewport()->mapTo(schedule.window(), schedule.placeOf(1).topLeft()).y();
  };
  EXPECT_EQ(height(left()), height(view(form.right)));
  for (DayScheduleView* scrolled : {&left(), &view(form.right)}) {
    scrolled->verticalScrollBar()->setValue(0);
    EXPECT_EQ(height(left()), height(view(form.right)));
    scrolled->verticalScrollBar()->setValue(scrolled->verticalScrollBar()->maximum());
    EXPECT_EQ(scrolled->verticalScrollBar()->value(), left().verticalScrollBar()->maximum());
    EXPECT_EQ(height(left()), height(view(form.right)));
  }
}

TEST_F(DaySchedule, whatCrossesMidnightIsOnEachOfItsDays) {
  const auto add = [&](std::int16_t start, std::int16_t end, std::int32_t date, std::int32_t first, std::int32_t last) {
    const std::int16_t index = form.left.AppAdd(start, end, date, "Long", "");
    form.left.setAppDays(index, first, last);
    return index;
  };
  const std::int16_t out = add(1320, 120, day + 1, day, day + 1), toMidnight = add(1260, 0, day + 1, day, day);
  const std::int16_t in = add(1200, 420, day, day - 1, day), through = add(1200, 420, day + 1, day - 1, day + 1);
  const std::int16_t next = add(0, 60, day + 1, day + 1, day + 1), backwards = add(840, 810, day, day, day);
  const std::int16_t past = add(600, 660, day - 1, day - 1, day - 1);
  left().verticalScrollBar()->setValue(0);
  const int top = left().placeOf(in).top(), hour = ScheduleLayout::rowHeight;
  EXPECT_EQ(left().placeOf(in).height(), 7 * hour - 1);
  EXPECT_EQ(left().placeOf(out).top(), top + 22 * hour);
  for (const std::int16_t atTheFoot : {out, toMidnight, next})
    EXPECT_NEAR(left().placeOf(atTheFoot).bottom(), top + 24 * hour, 2) << atTheFoot;
  EXPECT_LT(left().placeOf(through).bottom(), top) << "in the band";
  EXPECT_EQ(left().placeOf(backwards).topLeft().y(), top + 14 * hour);
  EXPECT_TRUE(left().placeOf(past).isNull());
}

TEST_F(DaySchedule, twoHundredAtOnceAreEachReachedAndDrawn) {
  std::vector<int> selected;
  const Connection onSelect = form.left.AppSelect.connect([&](std::int16_t index) { selected.push_back(index); });
  for (std::int16_t i = 0; i < 200; ++i) form.left.AppAdd(600, 720, day, "At once", "");
  const QRect seen = left().viewport()->rect();
  for (const std::int16_t index : std::initializer_list<std::int16_t>{1, 100, 200}) {
    EXPECT_GE(left().placeOf(index).width(), 80) << index;
    EXPECT_GE(left().placeOf(index).left(), seen.left());
    EXPECT_LE(left().placeOf(index).right(), seen.right());
  }
  left().setFocus();
  for (int i = 0; i < 100 && left().current() < 100; ++i) QTest::keyClick(&left(), Qt::Key_Down);
  EXPECT_EQ(left().current(), 100);
  click(left(), 100);
  EXPECT_EQ(selected, std::vector<int>{100}) << "what the keys lead to lies above the others";
  EXPECT_FALSE(left().grab().isNull());
}

TEST_F(DaySchedule, dayOfMinuteRowsIsDrawnToItsEnd) {
  form.left.setUseCustomScale(1);
  form.left.setCustomScale(1);
  form.left.Redraw(true);
  EXPECT_FALSE(left().grab().isNull());
  EXPECT_EQ(left().verticalScrollBar()->maximum() + left().verticalScrollBar()->pageStep(),
            1440 * ScheduleLayout::rowHeight);
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
  view.edit().setDate(QDate(9999, 12, 31));
  EXPECT_EQ(form.date.Date(), Date::of(9999, 12, 30)) << "the last day that can be shown";
  press("Day after");
  EXPECT_EQ(form.date.Date(), Date::of(9999, 12, 30));
}

TEST_F(DaySchedule, theDateBarKeepsItsButtonsAtEveryWidth) {
  for (const float width : {6000.0F, 2550.0F, 1500.0F, 900.0F, 300.0F}) {
    form.date.Move(0, 0, width, 300);
    const QWidget& view = *window.view(form.date);
    int left = 0;
    for (const char* name : {"Day before", "Today", "Day after"})
      for (auto* button : view.findChildren<QPushButton*>()) {
        if (button->accessibleName() != name) continue;
        EXPECT_TRUE(button->isVisible() && button->width() > 0) << width;
        EXPECT_GE(button->x(), left) << width;
        left = button->geometry().right() + 1;
      }
    EXPECT_LE(left, view.width()) << width;
  }
}

}  // namespace
}  // namespace tarnel::qt
