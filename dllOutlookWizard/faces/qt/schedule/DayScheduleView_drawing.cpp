#include <QDateTime>
#include <QPainter>
#include <QScrollBar>
#include <QStaticText>
#include <QTextLayout>

#include "Colors.h"
#include "DayScheduleView.h"
#include "Pictures.h"
#include "QtDate.h"
#include "QtText.h"

// How the day schedule looks.

namespace tarnel::qt {
namespace {

constexpr int cardPictureSide = 14;
constexpr int signSide = 9;
constexpr int minutesOfHour = 60;
const QColor nowColor(0xD9, 0x3A, 0x2B);

QString hourLabel(int minute) {
  const bool halves = QLocale().timeFormat(QLocale::ShortFormat).contains(u'a', Qt::CaseInsensitive);
  if (!halves) return QLocale().toString(toQTime(minute), QStringLiteral("HH:mm"));
  return QLocale().toString(toQTime(minute),
                            minute % minutesOfHour == 0 ? QStringLiteral("h AP") : QStringLiteral("h:mm AP"));
}

// Every row has its time where rows are long; of short ones every fifth minute.
QString rowLabel(int minute, int minutesPerRow, bool startsHour) {
  if (startsHour) return hourLabel(minute);
  if (minutesPerRow < 5 && minute % 5 != 0) return {};
  return QStringLiteral(":%1").arg(minute % minutesOfHour, 2, 10, QChar(u'0'));
}

// A triangle at the edge beyond which the appointment goes on.
void paintSign(QPainter& painter, const QRect& box, bool sideways, bool atEnd) {
  const double reach = atEnd ? 4 : -4;
  const double x = sideways && !atEnd ? box.left() + 6 : box.right() - 5;
  const double y = sideways ? box.top() + box.height() / 2.0 : atEnd ? box.bottom() - 7 : box.top() + 8;
  const QPointF base(x - (sideways ? reach / 2 : 0), y - (sideways ? 0 : reach / 2));
  painter.drawPolygon(sideways ? QPolygonF{base - QPointF(0, 4), base + QPointF(0, 4), base + QPointF(reach, 0)}
                               : QPolygonF{base - QPointF(4, 0), base + QPointF(4, 0), base + QPointF(0, reach)});
}

// One line, with dots for what is left over.
void paintLine(QPainter& painter, const QRect& room, const QString& shown) {
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(shown, Qt::ElideRight, room.width()));
}

// As many whole lines as fit, the first one after `indent`; what is left over is told by dots.
void paintLines(QPainter& painter, const QRect& place, int indent, const QString& shown) {
  const int height = painter.fontMetrics().height();
  const int lines = std::max(place.height() / height, 1);
  QTextLayout layout(shown, painter.font());
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  layout.beginLayout();
  for (int i = 0; i < lines; ++i) {
    QTextLine line = layout.createLine();
    if (!line.isValid()) break;
    const int left = i == 0 ? indent : 0;
    const QRect room(place.left() + left, place.top() + i * height, place.width() - left, height);
    line.setLineWidth(room.width());
    if (i + 1 == lines)
      paintLine(painter, room, shown.mid(line.textStart()));
    else
      line.draw(&painter, room.topLeft());
  }
  layout.endLayout();
}

bool isToday(Date day) { return toQDate(day) == QDate::currentDate(); }

}  // namespace

void DayScheduleView::paintEvent(QPaintEvent*) {
  layOut();
  const Head head = this->head();
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
  painter.setClipRect(viewport()->rect().adjusted(0, head.whole, 0, 0));
  paintRows(painter, head);
  paintBoxes(painter, head, false);
  paintNow(painter, head);
  painter.setClipping(false);
  paintHead(painter, head);
  paintBoxes(painter, head, true);
}

void DayScheduleView::paintBoxes(QPainter& painter, const Head& head, bool inBand) const {
  const QRect seen = viewport()->rect();
  const ScheduleLayout::Box* above = nullptr;
  const auto& boxes = layout_.boxes();
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    const ScheduleLayout::Box& box = boxes[i];
    // Of a hand of cards most may lie under the next one to the last line.
    const bool covered =
        i + 1 < boxes.size() && boxes[i + 1].inBand == inBand && boxes[i + 1].place.contains(box.place);
    if (box.inBand != inBand || (covered && box.index != raised())) continue;
    const QRect place = onViewport(box, head);
    if (!place.intersects(seen)) continue;
    if (box.index == raised())
      above = &box;
    else
      paintBox(painter, box, place);
  }
  if (above) paintBox(painter, *above, onViewport(*above, head));
}

void DayScheduleView::paintRows(QPainter& painter, const Head& head) const {
  const QColor base = palette().color(QPalette::Base);
  const QColor ink = palette().color(QPalette::Text);
  const int top = head.whole - verticalScrollBar()->value();
  painter.fillRect(0, 0, timesWidth(), viewport()->height(), palette().color(QPalette::Window));
  const int first = std::max(verticalScrollBar()->value() / ScheduleLayout::rowHeight, 0);
  const int last = std::min(first + viewport()->height() / ScheduleLayout::rowHeight + 1, layout_.rows() - 1);
  for (int row = first; row <= last; ++row) {
    const int y = top + row * ScheduleLayout::rowHeight;
    const int minute = layout_.minuteOf(row);
    const bool hour = layout_.startsHour(row);
    painter.fillRect(hour ? 0 : timesWidth(), y, viewport()->width(), 1, blend(base, ink, hour ? 0.24 : 0.10));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(0, y, timesWidth() - 5, ScheduleLayout::rowHeight), Qt::AlignRight | Qt::AlignVCenter,
                     rowLabel(minute, layout_.minutesPerRow(), hour));
  }
  painter.fillRect(timesWidth() - 1, 0, 1, viewport()->height(), lineColor(palette()));
}

void DayScheduleView::paintHead(QPainter& painter, const Head& head) const {
  const QRect all(0, 0, viewport()->width(), head.whole);
  painter.fillRect(all, palette().color(QPalette::Window));
  const QRect title(0, 0, all.width(), head.title);
  const bool today = isToday(control_.ShowDate());
  if (today) painter.fillRect(title, bandColor(palette()));
  painter.setPen(palette().color(QPalette::WindowText));
  QString notShown;
  if (layout_.before() > 0) notShown += QStringLiteral("\u2191%1 ").arg(layout_.before());
  if (layout_.after() > 0) notShown += QStringLiteral("\u2193%1 ").arg(layout_.after());
  painter.drawText(title, Qt::AlignRight | Qt::AlignVCenter, notShown);
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.drawText(title, Qt::AlignCenter,
                   QLocale::c().toString(toQDate(control_.ShowDate()), QStringLiteral("ddd, MMMM d")));
  painter.setFont(font());
  painter.fillRect(0, all.height() - 1, all.width(), 1, lineColor(palette()));
}

void DayScheduleView::paintNow(QPainter& painter, const Head& head) const {
  if (!isToday(control_.ShowDate())) return;
  const int now = layout_.at(QTime::currentTime().msecsSinceStartOfDay() / 60000);
  if (now < 0 || now > layout_.height()) return;
  const int y = head.whole - verticalScrollBar()->value() + now;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(nowColor);
  painter.drawRect(QRectF(timesWidth(), y - 1, viewport()->width() - timesWidth(), 2));
  painter.drawEllipse(QPointF(timesWidth(), y), 4, 4);
}

void DayScheduleView::paintBox(QPainter& painter, const ScheduleLayout::Box& box, const QRect& place) const {
  const ctMDay::Appointment& appointment = control_.appointment(box.index);
  const QColor ground = toQColor(appointment.color);
  const QColor ink = readableOn(ground);
  const bool current = hasFocus() && box.index == current_;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(blend(ground, ink, current ? 1 : 0.45), current ? 2 : 1));
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  if (appointment.markImage != 0) painter.drawRect(QRectF(place).adjusted(1, 2, 4 - place.width(), -2));
  if (box.startsBefore) paintSign(painter, place, box.inBand, false);
  if (box.endsLater) paintSign(painter, place, box.inBand, true);

  QRect inside = place.adjusted(5, 1, -2, -1);
  if (box.startsBefore && box.inBand) inside.setLeft(inside.left() + signSide);
  if (box.endsLater || box.startsBefore) inside.setRight(inside.right() - signSide);
  const bool oneLine = inside.height() < 2 * fontMetrics().height();
  const double pictureTop = oneLine ? (inside.height() - cardPictureSide) / 2.0 : 1;
  int indent = 0;
  for (const std::int16_t number : {appointment.markImage, appointment.ownerImage}) {
    const std::string picture = control_.image(number);
    if (picture.empty() || inside.width() < indent + cardPictureSide) continue;
    paintPicture(painter, QRectF(inside.left() + indent, inside.top() + pictureTop, cardPictureSide, cardPictureSide),
                 picture);
    indent += cardPictureSide + 3;
  }
  painter.setPen(ink);
  if (indent >= inside.width()) return;
  if (!oneLine) return paintLines(painter, inside, indent, qt::oneLine(appointment.text));
  const QStaticText& line = singleLine(box.index, inside.width() - indent);
  painter.drawStaticText(QPointF(inside.left() + indent, inside.top() + (inside.height() - line.size().height()) / 2),
                         line);
}

const QStaticText& DayScheduleView::singleLine(std::int16_t index, int width) const {
  const auto [kept, isNew] = singleLines_.try_emplace({index, width});
  if (isNew) {
    const QString text = qt::oneLine(control_.appointment(index).text);
    kept->second.setTextFormat(Qt::PlainText);
    kept->second.setText(fontMetrics().elidedText(text, Qt::ElideRight, width));
    kept->second.prepare({}, font());
  }
  return kept->second;
}

}  // namespace tarnel::qt
