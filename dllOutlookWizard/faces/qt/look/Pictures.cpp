#include "Pictures.h"

#include <QObject>
#include <QPainter>
#include <QPainterPath>
#include <map>

namespace tarnel::qt {
namespace {

// Pictures are drawn on a square of 16 by 16 units.
constexpr double side = 16;

// A rounded tile with a T whose stem ends as a tick: a task, done.
void paintTarnel(QPainter& painter) {
  painter.setPen(QPen(QColor(0x0B, 0x5A, 0x46), 0.8));
  painter.setBrush(QColor(0x17, 0x8A, 0x6B));
  painter.drawRoundedRect(QRectF(1, 1, 14, 14), 3.2, 3.2);
  painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawLine(QPointF(4, 4.8), QPointF(12, 4.8));
  QPainterPath stem(QPointF(8, 4.8));
  stem.lineTo(8, 12);
  stem.lineTo(5.4, 9.6);
  painter.drawPath(stem);
}

// An envelope with a clock at its corner: mail and appointments.
void paintOutlook(QPainter& painter) {
  const QColor edge(0x1D, 0x4E, 0x89);
  painter.setPen(QPen(edge, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(QColor(0xDC, 0xE9, 0xF8));
  painter.drawRoundedRect(QRectF(1, 2.5, 14, 9.5), 1.2, 1.2);
  painter.setBrush(Qt::NoBrush);
  QPainterPath flap(QPointF(1.6, 3.2));
  flap.lineTo(8, 8);
  flap.lineTo(14.4, 3.2);
  painter.drawPath(flap);
  painter.setBrush(QColor(0xF2, 0xB1, 0x34));
  painter.drawEllipse(QPointF(11.8, 11.6), 3.7, 3.7);
  QPainterPath hands(QPointF(11.8, 9.4));
  hands.lineTo(11.8, 11.7);
  hands.lineTo(13.4, 12.5);
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(hands);
}

void paintCheck(QPainter& painter) {
  painter.setPen(QPen(QColor(0x1C, 0x66, 0x2B), 0.8));
  painter.setBrush(QColor(0x2E, 0x9E, 0x46));
  painter.drawEllipse(QRectF(1, 1, 14, 14));
  painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  paintTick(painter, QRectF(3.2, 3.2, 9.6, 9.6));
}

const QColor paperEdge(0x5F, 0x6B, 0x7A);

void paintPaper(QPainter& painter, const QRectF& sheet) {
  painter.setPen(QPen(paperEdge, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::white);
  painter.drawRect(sheet);
  for (double y = sheet.top() + 2.5; y < sheet.bottom() - 1; y += 2)
    painter.drawLine(QPointF(sheet.left() + 2, y), QPointF(sheet.right() - 2, y));
}

// A printer with a sheet above and one below.
void paintPrinter(QPainter& painter) {
  paintPaper(painter, QRectF(4, 1.5, 8, 5));
  painter.setBrush(QColor(0xB9, 0xC4, 0xD2));
  painter.drawRoundedRect(QRectF(1.5, 6, 13, 6.5), 1.2, 1.2);
  paintPaper(painter, QRectF(4, 9.5, 8, 5));
}

// A sheet under a magnifying glass.
void paintPreview(QPainter& painter) {
  paintPaper(painter, QRectF(1.5, 1.5, 9, 12.5));
  painter.setPen(QPen(QColor(0x1D, 0x4E, 0x89), 1.4, Qt::SolidLine, Qt::RoundCap));
  painter.setBrush(QColor(0xDC, 0xE9, 0xF8));
  painter.drawEllipse(QPointF(10, 9), 3.4, 3.4);
  painter.drawLine(QPointF(12.6, 11.6), QPointF(14.6, 13.8));
}

const std::map<std::string, void (*)(QPainter&)>& pictures() {
  static const std::map<std::string, void (*)(QPainter&)> all{{"Tarnel", paintTarnel},
                                                              {"OUTLOOK", paintOutlook},
                                                              {"CHECK", paintCheck},
                                                              {"print", paintPrinter},
                                                              {"preview", paintPreview}};
  return all;
}

}  // namespace

QIcon pictureIcon(const std::string& key) {
  if (!pictures().contains(key)) return {};
  QIcon icon;
  for (const int pixels : {16, 24, 32}) {
    QPixmap picture(pixels, pixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paintPicture(painter, picture.rect(), key);
    icon.addPixmap(picture);
  }
  return icon;
}

QString pictureWords(const std::string& key) {
  if (key == "Tarnel") return QObject::tr("linked to a task in Tarnel");
  // Beside a Tarnel task this tells of its link, beside an Outlook task of nothing more.
  return key == "OUTLOOK" ? QObject::tr("in Outlook") : QString();
}

void paintTick(QPainter& painter, const QRectF& place) {
  const auto at = [&place](double x, double y) {
    return QPointF(place.x() + x * place.width(), place.y() + y * place.height());
  };
  QPainterPath tick(at(0.14, 0.54));
  tick.lineTo(at(0.40, 0.80));
  tick.lineTo(at(0.86, 0.24));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(tick);
}

void paintPicture(QPainter& painter, const QRectF& place, const std::string& key) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(place.topLeft());
  painter.scale(place.width() / side, place.height() / side);
  if (const auto picture = pictures().find(key); picture != pictures().end()) picture->second(painter);
  painter.restore();
}

}  // namespace tarnel::qt
