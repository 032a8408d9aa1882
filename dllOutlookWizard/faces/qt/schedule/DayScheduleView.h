#pragma once

#include <QAbstractScrollArea>
#include <QStaticText>
#include <map>
#include <utility>

#include "ScheduleGroup.h"
#include "ScheduleLayout.h"
#include "ViewSite.h"
#include "ctMDay.h"

namespace tarnel::qt {

// One day: its name, a band of what lasts all day, then rows of hours with the appointments on them. A click, or the
// space bar on the one that the arrow keys lead to, selects an appointment; it and the one under the pointer lie above
// the others. Schedules in one window scroll together and keep their rows level.
class DayScheduleView : public QAbstractScrollArea {
 public:
  DayScheduleView(ctMDay& control, ViewSite& site, QWidget* parent);
  ~DayScheduleView() override;

  // Where an appointment is in the viewport; nowhere when it isn't on the day or in the hours shown.
  QRect placeOf(std::int16_t index);
  // That which the keys act on; 0 for none.
  std::int16_t current() const { return current_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  void changed();
  void layOut();
  // What is above the rows, in pixels: the day's name, and that with the band below it.
  struct Head {
    int title;
    int whole;
  };
  Head head() const;
  // Of the times beside the rows.
  static int timesWidth() { return 46; }
  // Of the rows that can be seen, on the schedule where they are fewest.
  int room() const;
  std::int16_t appointmentAt(const QPoint& at);
  void select(std::int16_t index);
  void walk(int step);
  void bringIntoView(std::int16_t index);
  void hover(std::int16_t index);
  // What lies above the others; 0 for none.
  std::int16_t raised() const { return hovered_ != 0 ? hovered_ : hasFocus() ? current_ : std::int16_t{0}; }
  // What a tool tip tells of an appointment, and of the day's name.
  QString describe(std::int16_t index) const;
  QString hoursNotShown() const;

  void paintRows(QPainter& painter, const Head& head) const;
  void paintBoxes(QPainter& painter, const Head& head, bool inBand) const;
  void paintHead(QPainter& painter, const Head& head) const;
  void paintNow(QPainter& painter, const Head& head) const;
  void paintBox(QPainter& painter, const ScheduleLayout::Box& box, const QRect& place) const;
  // The appointment's text as far as one line of that width takes it.
  const QStaticText& singleLine(std::int16_t index, int width) const;
  QRect onViewport(const ScheduleLayout::Box& box, const Head& head) const;

  ctMDay& control_;
  ViewSite& site_;
  const std::shared_ptr<ScheduleGroup> group_;
  ScheduleLayout layout_;
  // Kept until the layout changes: to shape a text costs more than to paint its whole appointment.
  mutable std::map<std::pair<std::int16_t, int>, QStaticText> singleLines_;
  bool outdated_ = true;
  bool seen_ = false;
  std::int16_t current_ = 0;
  std::int16_t pressed_ = 0;
  std::int16_t hovered_ = 0;
  Connection onChange_;
};

}  // namespace tarnel::qt
