#include "ScrollBar.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include "Colors.h"

namespace tarnel::qt {

void ScrollBar::paintEvent(QPaintEvent*) {
  QStyleOptionSlider option;
  initStyleOption(&option);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor ground = palette().color(QPalette::Base);
  const QColor ink = palette().color(QPalette::Text);
  painter.fillRect(rect(), blend(ground, ink, 0.05));
  const auto part = [&](QStyle::SubControl control) {
    return QRectF(style()->subControlRect(QStyle::CC_ScrollBar, &option, control, this));
  };
  painter.setPen(Qt::NoPen);
  painter.setBrush(blend(ground, ink, isSliderDown() || underMouse() ? 0.6 : 0.42));
  painter.drawRoundedRect(part(QStyle::SC_ScrollBarSlider).adjusted(3, 2, -3, -2), 4, 4);
  const auto arrow = [&painter](const QPointF& at, double tip) {
    painter.drawPolygon(QPolygonF{at + QPointF(-3, -tip / 2), at + QPointF(3, -tip / 2), at + QPointF(0, tip / 2)});
  };
  if (orientation() != Qt::Vertical) return;
  arrow(part(QStyle::SC_ScrollBarSubLine).center(), -4);
  arrow(part(QStyle::SC_ScrollBarAddLine).center(), 4);
}

}  // namespace tarnel::qt
