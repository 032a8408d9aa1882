#include "LabelView.h"

#include <QPainter>

#include "Colors.h"
#include "QtText.h"

namespace tarnel::qt {
namespace {
constexpr int smallestFont = 9;  // pixels
constexpr int sideMargin = 6;
}  // namespace

LabelView::LabelView(Label& control, QWidget* parent) : QLabel(parent), control_(control) {
  setTextFormat(Qt::PlainText);
  QFont font = formFont();
  font.setBold(control.look() == Label::Look::band);
  setFont(font);
  onCaption_ = control.captionChanged.connect([this] { captionChanged(); });
  setText(qt::text(control.Caption()));  // whether it fits is seen when the label has its size
}

void LabelView::captionChanged() {
  setText(qt::text(control_.Caption()));
  setToolTip(fits(fittingFont()) ? QString() : qt::toolTip(text()));
}

void LabelView::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  captionChanged();
}

int LabelView::textFlags() const {
  const bool wraps = control_.look() == Label::Look::heading;
  return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | (wraps ? Qt::TextWordWrap : Qt::TextSingleLine);
}

QRect LabelView::textRect() const { return rect().adjusted(sideMargin, 0, -sideMargin, 0); }

bool LabelView::fits(const QFont& font) const {
  const QRect room = textRect();
  const QSize needed = QFontMetrics(font).boundingRect(room, textFlags(), text()).size();
  return needed.width() <= room.width() && needed.height() <= room.height();
}

QFont LabelView::fittingFont() const {
  QFont font = this->font();
  while (!fits(font) && font.pixelSize() > smallestFont) font.setPixelSize(font.pixelSize() - 1);
  return font;
}

void LabelView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const Label::Look look = control_.look();
  if (look == Label::Look::backdrop) {
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.fillRect(0, height() - 1, width(), 1, lineColor(palette()));
    return;
  }
  if (look == Label::Look::band) painter.fillRect(rect(), bandColor(palette()));
  painter.setFont(fittingFont());
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  const bool oneLine = look != Label::Look::heading;
  painter.drawText(textRect(), textFlags(),
                   oneLine ? painter.fontMetrics().elidedText(text(), Qt::ElideRight, textRect().width()) : text());
}

}  // namespace tarnel::qt
