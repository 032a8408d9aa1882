#include "SplitterView.h"

#include <QKeyEvent>
#include <QPainter>

#include "Colors.h"
#include "Twips.h"

namespace tarnel::qt {
namespace {
constexpr float keyStep = twips(10);
}

SplitterBar::SplitterBar(SSSplitter& control, ViewSite& site, QWidget* parent)
    : QWidget(parent), control_(control), site_(site) {
  setCursor(Qt::SplitHCursor);
  setFocusPolicy(Qt::TabFocus);
  setAccessibleName(tr("Divider: the left and right arrow keys move it"));
  setAttribute(Qt::WA_Hover);
}

void SplitterBar::place() {
  setGeometry(pixelRect({leftPane().Width(), 0, SSSplitter::barWidth, control_.Height()}));
  raise();
}

void SplitterBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool lively = hasFocus() || underMouse();
  if (hasFocus()) painter.fillRect(rect(), accentColor(palette()));
  const QColor grip = hasFocus() ? readableOn(accentColor(palette()))
                      : lively   ? accentColor(palette())
                                 : lineColor(palette());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(grip);
  painter.drawRoundedRect(QRectF(width() / 2.0 - 1, height() / 2.0 - 14, 2, 28), 1, 1);
}

float SplitterBar::draggedWidth(const QMouseEvent& event) const {
  return twips(mapToParent(event.position().toPoint()).x() - grip_);
}

void SplitterBar::mousePressEvent(QMouseEvent* event) { grip_ = event->position().toPoint().x(); }

void SplitterBar::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) return;
  site_.act([this, event] { leftPane().setWidth(draggedWidth(*event)); });
}

void SplitterBar::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  site_.act([this, event] { control_.drag(draggedWidth(*event)); });
}

void SplitterBar::keyPressEvent(QKeyEvent* event) {
  const int direction = event->key() == Qt::Key_Left ? -1 : event->key() == Qt::Key_Right ? 1 : 0;
  if (direction == 0) return QWidget::keyPressEvent(event);
  site_.act([&] { control_.drag(leftPane().Width() + keyStep * static_cast<float>(direction)); });
}

SplitterView::SplitterView(SSSplitter& control, ViewSite& site, QWidget* parent)
    : QWidget(parent), bar_(new SplitterBar(control, site, this)) {
  const auto follow = [this](Signal<>& moved) { connections_.push_back(moved.connect([this] { bar_->place(); })); };
  follow(control.placementChanged);
  for (Control* content : control.contents()) follow(content->placementChanged);
  bar_->place();
}

}  // namespace tarnel::qt
