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
constexpr int leastTitle = 20;   // pixels

QString dayName(std::int32_t day) {
  return QLocale::c().toString(toQDate(Date{static_cast<double>(day)}), QStringLiteral("ddd, MMMM d"));
}
}  // namespace

DayScheduleView::DayScheduleView(ctMDay& control, ViewSite& site, QWidget* parent)
    : QAbstractScrollArea(parent), control_(control), site_(site), group_(site.schedules()) {
  group_->views.push_back(this);
  setFrameShape(NoFrame);
  setVerticalScrollBar(new ScrollBar(Qt::Vertical, this));
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::StrongFocus);
  setFont(formFont());
  viewport()->setMouseTracking(true);
  verticalScrollBar()->setSingleStep(ScheduleLayout::rowHeight);
  onChange_ = control.changed.connect([this] { changed(); });
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
    viewport()->update();
    for (DayScheduleView* each : group_->views) each->verticalScrollBar()->setValue(value);
  });
}

DayScheduleView::~DayScheduleView() { std::erase(group_->views, this); }

void DayScheduleView::changed() {
  for (DayScheduleView* each : group_->views) each->outdated_ = true, each->viewport()->update();
}

void DayScheduleView::layOut() {
  if (!std::exchange(outdated_, false)) return;
  const int topMinute = layout_.minuteAt(verticalScrollBar()->value());
  layout_ = ScheduleLayout(control_, viewport()->width() - timesWidth());
  singleLines_.clear();
  if (current_ > control_.AppCount()) current_ = 0;
  hovered_ = 0;
  for (DayScheduleView* each : group_->views) each->layOut();
  verticalScrollBar()->setPageStep(std::max(room(), 1));
  verticalScrollBar()->setRange(0, std::max(layout_.height() - room(), 0));
  // Other hours or another scale: what was at the top stays there.
  if (layout_.minuteAt(verticalScrollBar()->value()) != topMinute) verticalScrollBar()->setValue(layout_.at(topMinute));
}

// Wherever the schedules are, the first rows of all start at one height.
DayScheduleView::Head DayScheduleView::head() const {
  const auto top = [](const DayScheduleView& each) { return each.viewport()->mapTo(each.window(), QPoint()).y(); };
  int lowest = top(*this);
  int band = 0;
  for (const DayScheduleView* each : group_->views) {
    lowest = std::max(lowest, top(*each));
    band = std::max(band, each->layout_.bandHeight());
  }
  const int title = lowest - top(*this) + leastTitle;
  return {title, title + band};
}

int DayScheduleView::room() const {
  int least = viewport()->height();
  for (const DayScheduleView* each : group_->views)
    least = std::min(least, each->viewport()->height() - each->head().whole);
  return least;
}

QRect DayScheduleView::onViewport(const ScheduleLayout::Box& box, const Head& head) const {
  return box.place.translated(timesWidth(), box.inBand ? head.title : head.whole - verticalScrollBar()->value());
}

QRect DayScheduleView::placeOf(std::int16_t index) {
  layOut();
  const auto box = std::ranges::find(layout_.boxes(), index, &ScheduleLayout::Box::index);
  return box == layout_.boxes().end() ? QRect() : onViewport(*box, head());
}

std::int16_t DayScheduleView::appointmentAt(const QPoint& at) {
  layOut();
  const auto holds = [&, head = head()](const ScheduleLayout::Box& box) {
    return onViewport(box, head).contains(at) && (box.inBand || at.y() >= head.whole);
  };
  const auto& boxes = layout_.boxes();
  const auto above = std::ranges::find(boxes, raised(), &ScheduleLayout::Box::index);
  if (above != boxes.end() && holds(*above)) return above->index;
  const auto uppermost = std::find_if(boxes.rbegin(), boxes.rend(), holds);
  return uppermost == boxes.rend() ? std::int16_t{0} : uppermost->index;
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
  site_.act([this, index] { control_.select(index); });
  // What was selected may have left the schedule.
  if (index <= control_.AppCount()) setAccessibleDescription(describe(index));
  viewport()->update();
}

void DayScheduleView::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->button() == Qt::LeftButton ? appointmentAt(event->position().toPoint()) : std::int16_t{0};
}

void DayScheduleView::mouseReleaseEvent(QMouseEvent* event) {
  const std::int16_t pressed = std::exchange(pressed_, std::int16_t{0});
  if (pressed != 0 && appointmentAt(event->position().toPoint()) == pressed) select(pressed);
}

void DayScheduleView::mouseMoveEvent(QMouseEvent* event) { hover(appointmentAt(event->position().toPoint())); }

void DayScheduleView::hover(std::int16_t index) {
  if (std::exchange(hovered_, index) != index) viewport()->update();
}

void DayScheduleView::keyPressEvent(QKeyEvent* event) {
  layOut();
  hover(0);  // the keys' own appointment is the one to be seen
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
  if (box == layout_.boxes().end() || box->inBand) return;
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

void DayScheduleView::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
}

QString DayScheduleView::describe(std::int16_t index) const {
  const ctMDay::Appointment& appointment = control_.appointment(index);
  const auto dated = [this](std::int32_t day, std::int16_t minute) {
    const QString time = timeText(minute);
    return day == static_cast<std::int32_t>(control_.ShowDate().days) ? time : dayName(day) + u' ' + time;
  };
  const bool wholeDay =
      appointment.allDay || (appointment.start == 0 && appointment.end == ScheduleLayout::minutesOfDay);
  QString when = dated(appointment.firstDay, appointment.start) + tr(" - ") + dated(appointment.date, appointment.end);
  if (wholeDay) when = tr("All day");
  if (wholeDay && appointment.firstDay != appointment.lastDay)
    when += tr(", %1 to %2").arg(dayName(appointment.firstDay), dayName(appointment.lastDay));
  if (appointment.date == appointment.firstDay && appointment.end < appointment.start)
    when += tr(" (it ends before it starts)");
  if (appointment.markImage != 0) when += tr(", selected");
  return when + u'\n' + text(appointment.text);
}

QString DayScheduleView::hoursNotShown() const {
  if (layout_.before() + layout_.after() == 0) return {};
  return tr("Outside the hours shown: %1 earlier, %2 later").arg(layout_.before()).arg(layout_.after());
}

bool DayScheduleView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::Leave) hover(0);
  if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
  const auto& help = static_cast<QHelpEvent&>(*event);
  const std::int16_t index = appointmentAt(help.pos());
  const QString tip = help.pos().y() < head().title ? hoursNotShown() : index == 0 ? QString() : describe(index);
  QToolTip::showText(help.globalPos(), qt::toolTip(tip), viewport());
  return true;
}

}  // namespace tarnel::qt
