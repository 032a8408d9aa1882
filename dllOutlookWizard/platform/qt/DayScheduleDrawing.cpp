#include <QDateTime>
#include <QPainter>
#include <QScrollBar>

#include "Colors.h"
#include "DayScheduleView.h"
#include "Pictures.h"
#include "QtDate.h"
#include "QtText.h"

// How the day schedule looks.

namespace tarnel::qt {
namespace {

constexpr int pictureSide = 14;
constexpr int minutesOfHour = 60;
const QColor nowColor(0xD9, 0x3A, 0x2B);

QString hourLabel(int minute) {
  const bool halves = QLocale().timeFormat(QLocale::ShortFormat).contains(u'a', Qt::CaseInsensitive);
  return QLocale().toString(toQTime(minute), halves ? QStringLiteral("h AP") : QStringLiteral("HH:mm"));
}

// Every row has its time where rows are long; of short ones every fifth minute.
QString rowLabel(int minute, int minutesPerRow) {
  if (minute % minutesOfHour == 0) return hourLabel(minute);
  if (minutesPerRow < 5 && minute % 5 != 0) return {};
  return QStringLiteral(":%1").arg(minute % minutesOfHour, 2, 10, QChar(u'0'));
}

bool isToday(Date day) { return toQDate(day) == QDate::currentDate(); }

}  // namespace

void DayScheduleView::paintEvent(QPaintEvent*) {
  layOut();
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
  painter.setClipRect(viewport()->rect().adjusted(0, headHeight(), 0, 0));
  paintRows(painter);
  for (const ScheduleLayout::Box& box : layout_.boxes())
    if (!box.allDay) paintBox(painter, box);
  paintNow(painter);
  painter.setClipping(false);
  paintHead(painter);
  for (const ScheduleLayout::Box& box : layout_.boxes())
    if (box.allDay) paintBox(painter, box);
}

void DayScheduleView::paintRows(QPainter& painter) const {
  const QColor base = palette().color(QPalette::Base);
  const QColor ink = palette().color(QPalette::Text);
  const int top = headHeight() - verticalScrollBar()->value();
  painter.fillRect(0, 0, timesWidth(), viewport()->height(), palette().color(QPalette::Window));
  const int first = std::max(verticalScrollBar()->value() / ScheduleLayout::rowHeight, 0);
  const int last = std::min(first + viewport()->height() / ScheduleLayout::rowHeight + 1, layout_.rows() - 1);
  for (int row = first; row <= last; ++row) {
    const int y = top + row * ScheduleLayout::rowHeight;
    const int minute = layout_.minuteOf(row);
    const bool hour = minute % minutesOfHour == 0;
    painter.fillRect(hour ? 0 : timesWidth(), y, viewport()->width(), 1, blend(base, ink, hour ? 0.24 : 0.10));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(0, y, timesWidth() - 5, ScheduleLayout::rowHeight), Qt::AlignRight | Qt::AlignVCenter,
                     rowLabel(minute, layout_.minutesPerRow()));
  }
  painter.fillRect(timesWidth() - 1, 0, 1, viewport()->height(), lineColor(palette()));
}

void DayScheduleView::paintHead(QPainter& painter) const {
  const QRect head(0, 0, viewport()->width(), headHeight());
  painter.fillRect(head, palette().color(QPalette::Window));
  const QRect title(0, 0, head.width(), titleHeight());
  const bool today = isToday(control_.ShowDate());
  if (today) painter.fillRect(title, bandColor(palette()));
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(title, Qt::AlignCenter,
                   QLocale::c().toString(toQDate(control_.ShowDate()), QStringLiteral("ddd, MMMM d")));
  painter.setFont(font());
  painter.fillRect(0, head.height() - 1, head.width(), 1, lineColor(palette()));
}

void DayScheduleView::paintNow(QPainter& painter) const {
  if (!isToday(control_.ShowDate())) return;
  const int now = layout_.at(QTime::currentTime().msecsSinceStartOfDay() / 60000);
  if (now < 0 || now > layout_.height()) return;
  const int y = headHeight() - verticalScrollBar()->value() + now;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(nowColor);
  painter.drawRect(QRectF(timesWidth(), y - 1, viewport()->width() - timesWidth(), 2));
  painter.drawEllipse(QPointF(timesWidth(), y), 4, 4);
}

void DayScheduleView::paintBox(QPainter& painter, const ScheduleLayout::Box& box) const {
  const ctMDay::Appointment& appointment = control_.appointment(box.index);
  const QRect place = onViewport(box);
  if (!place.intersects(viewport()->rect())) return;
  const QColor ground = toQColor(appointment.color);
  const QColor ink = readableOn(ground);
  const bool current = hasFocus() && box.index == current_;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(current ? accentColor(palette()) : blend(ground, ink, 0.45), current ? 2 : 1));
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);

  QRect inside = place.adjusted(4, 1, -3, -1);
  const bool oneLine = inside.height() < 2 * fontMetrics().height();
  const double pictureTop = oneLine ? (inside.height() - pictureSide) / 2.0 : 1;
  for (const std::int16_t number : {appointment.markImage, appointment.ownerImage}) {
    const std::string picture = control_.image(number);
    if (picture.empty() || inside.width() < pictureSide) continue;
    paintPicture(painter, QRectF(inside.left(), inside.top() + pictureTop, pictureSide, pictureSide), picture);
    inside.setLeft(inside.left() + pictureSide + 3);
  }
  painter.setPen(ink);
  const QString shown = qt::oneLine(appointment.text);
  painter.drawText(inside,
                   (oneLine ? Qt::AlignVCenter | Qt::TextSingleLine : Qt::AlignTop | Qt::TextWordWrap) | Qt::AlignLeft,
                   oneLine ? fontMetrics().elidedText(shown, Qt::ElideRight, inside.width()) : shown);
}

}  // namespace tarnel::qt
