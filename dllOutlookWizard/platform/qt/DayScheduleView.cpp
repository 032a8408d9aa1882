#include "DayScheduleView.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

#include "QtDate.h"
#include "QtText.h"
#include "ScrollBar.h"

namespace tarnel::qt {
namespace {
constexpr int morning = 8 * 60;  // what a long day is scrolled to at first
}

DayScheduleView::DayScheduleView(ctMDay& control, ViewSite& site, QWidget* parent)
    : QAbstractScrollArea(parent), control_(control), site_(site) {
  setFrameShape(NoFrame);
  setVerticalScrollBar(new ScrollBar(Qt::Vertical, this));
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::StrongFocus);
  setFont(formFont());
  verticalScrollBar()->setSingleStep(ScheduleLayout::rowHeight);
  onChange_ = control.changed.connect([this] { changed(); });
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
    viewport()->update();
    for (DayScheduleView* peer : peers()) peer->verticalScrollBar()->setValue(value);
  });
}

void DayScheduleView::changed() {
  outdated_ = true;
  for (DayScheduleView* peer : peers()) peer->outdated_ = true, peer->viewport()->update();
  viewport()->update();
}

void DayScheduleView::layOut() {
  if (!std::exchange(outdated_, false)) return;
  const int topMinute = layout_.minuteAt(verticalScrollBar()->value());
  layout_ = ScheduleLayout(control_, viewport()->width() - timesWidth());
  if (current_ > control_.AppCount()) current_ = 0;
  for (DayScheduleView* peer : peers()) peer->layOut();
  const int room = viewport()->height() - headHeight();
  verticalScrollBar()->setPageStep(std::max(room, 1));
  verticalScrollBar()->setRange(0, std::max(layout_.height() - room, 0));
  // Other hours or another scale: what was at the top stays there.
  if (layout_.minuteAt(verticalScrollBar()->value()) != topMinute) verticalScrollBar()->setValue(layout_.at(topMinute));
}

std::vector<DayScheduleView*> DayScheduleView::peers() const {
  std::vector<DayScheduleView*> found;
  for (auto* area : window()->findChildren<QAbstractScrollArea*>())
    if (auto* schedule = dynamic_cast<DayScheduleView*>(area); schedule && schedule != this) found.push_back(schedule);
  return found;
}

int DayScheduleView::headHeight() const {
  int band = layout_.bandHeight();
  for (const DayScheduleView* peer : peers()) band = std::max(band, peer->layout_.bandHeight());
  return titleHeight() + band;
}

QRect DayScheduleView::onViewport(const ScheduleLayout::Box& box) const {
  const int top = box.allDay ? titleHeight() : headHeight() - verticalScrollBar()->value();
  return box.place.translated(timesWidth(), top);
}

QRect DayScheduleView::placeOf(std::int16_t index) {
  layOut();
  const auto box = std::ranges::find(layout_.boxes(), index, &ScheduleLayout::Box::index);
  return box == layout_.boxes().end() ? QRect() : onViewport(*box);
}

std::int16_t DayScheduleView::appointmentAt(const QPoint& at) {
  layOut();
  for (const ScheduleLayout::Box& box : layout_.boxes())
    if (onViewport(box).contains(at) && (box.allDay || at.y() >= headHeight())) return box.index;
  return 0;
}

void DayScheduleView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  changed();
  layOut();
}

void DayScheduleView::showEvent(QShowEvent* event) {
  QAbstractScrollArea::showEvent(event);
  outdated_ = true;
  layOut();
  if (!std::exchange(seen_, true)) verticalScrollBar()->setValue(layout_.at(morning));
}

void DayScheduleView::select(std::int16_t index) {
  current_ = index;
  setAccessibleDescription(describe(index));
  viewport()->update();
  site_.act([this, index] { control_.select(index); });
}

void DayScheduleView::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->button() == Qt::LeftButton ? appointmentAt(event->position().toPoint()) : std::int16_t{0};
}

void DayScheduleView::mouseReleaseEvent(QMouseEvent* event) {
  const std::int16_t pressed = std::exchange(pressed_, std::int16_t{0});
  if (pressed != 0 && appointmentAt(event->position().toPoint()) == pressed) select(pressed);
}

void DayScheduleView::keyPressEvent(QKeyEvent* event) {
  layOut();
  QScrollBar& bar = *verticalScrollBar();
  switch (event->key()) {
    case Qt::Key_Space:
      if (current_ != 0 && !placeOf(current_).isNull()) select(current_);
      return;
    case Qt::Key_Down:
    case Qt::Key_Right:
      return walk(1);
    case Qt::Key_Up:
    case Qt::Key_Left:
      return walk(-1);
    case Qt::Key_Home:
      return bar.setValue(0);
    case Qt::Key_End:
      return bar.setValue(bar.maximum());
    case Qt::Key_PageUp:
      return bar.triggerAction(QScrollBar::SliderPageStepSub);
    case Qt::Key_PageDown:
      return bar.triggerAction(QScrollBar::SliderPageStepAdd);
    default:
      return QAbstractScrollArea::keyPressEvent(event);
  }
}

void DayScheduleView::walk(int step) {
  const auto& boxes = layout_.boxes();
  if (boxes.empty())
    return verticalScrollBar()->setValue(verticalScrollBar()->value() + step * ScheduleLayout::rowHeight);
  const auto at = std::ranges::find(boxes, current_, &ScheduleLayout::Box::index);
  const std::ptrdiff_t from = at == boxes.end() ? (step > 0 ? -1 : std::ssize(boxes)) : at - boxes.begin();
  const std::ptrdiff_t to = std::clamp<std::ptrdiff_t>(from + step, 0, std::ssize(boxes) - 1);
  current_ = boxes[static_cast<std::size_t>(to)].index;
  setAccessibleDescription(describe(current_));
  bringIntoView(current_);
  viewport()->update();
}

void DayScheduleView::bringIntoView(std::int16_t index) {
  const auto box = std::ranges::find(layout_.boxes(), index, &ScheduleLayout::Box::index);
  if (box == layout_.boxes().end() || box->allDay) return;
  QScrollBar& bar = *verticalScrollBar();
  if (box->place.top() < bar.value()) bar.setValue(box->place.top());
  if (box->place.bottom() > bar.value() + bar.pageStep())
    bar.setValue(std::min(box->place.top(), box->place.bottom() - bar.pageStep()));
}

void DayScheduleView::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  layOut();
  if (current_ == 0) walk(1);
  viewport()->update();
}

QString DayScheduleView::describe(std::int16_t index) const {
  const ctMDay::Appointment& appointment = control_.appointment(index);
  const QString when = appointment.allDay
                           ? tr("All day")
                           : timeText(appointment.start) + QStringLiteral(" - ") + timeText(appointment.end);
  return when + u'\n' + text(appointment.text);
}

bool DayScheduleView::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
  const auto& help = static_cast<QHelpEvent&>(*event);
  const std::int16_t index = appointmentAt(help.pos());
  QToolTip::showText(help.globalPos(), index == 0 ? QString() : qt::toolTip(describe(index)), viewport());
  return true;
}

}  // namespace tarnel::qt
