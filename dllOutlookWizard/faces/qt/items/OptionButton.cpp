#include "OptionButton.h"

#include <QPainter>
#include <algorithm>

#include "Colors.h"
#include "QtText.h"

namespace tarnel::qt {
namespace {
constexpr int markSide = 14;
constexpr int besideMark = 22;
constexpr int around = 3;  // above and below the caption
constexpr int flags = Qt::TextWordWrap | Qt::TextShowMnemonic | Qt::AlignLeft | Qt::AlignTop;
}  // namespace

OptionButton::OptionButton(SmartUI& control, SmartItem& item, ViewSite& site, QWidget* parent)
    : QRadioButton(parent), item_(item) {
  setAutoExclusive(false);
  setFont(formFont());
  QSizePolicy grows(QSizePolicy::Preferred, QSizePolicy::Preferred);
  grows.setHeightForWidth(true);
  setSizePolicy(grows);
  connect(this, &QAbstractButton::clicked, this, [&control, &item, &site] { site.act([&] { control.press(item); }); });
  showState();
}

void OptionButton::showState() {
  setText(qt::text(item_.Caption()));
  setToolTip(qt::toolTip(qt::text(item_.ToolTipText())));
  setChecked(item_.Checked());
  update();
}

int OptionButton::captionLeft() const { return contentsMargins().left() + besideMark; }

int OptionButton::heightForWidth(int width) const {
  const QRect room(0, 0, std::max(width - captionLeft(), 40), 10000);
  return std::max(fontMetrics().boundingRect(room, flags, text()).height(), markSide) + 2 * around;
}

QSize OptionButton::sizeHint() const {
  return {fontMetrics().size(Qt::TextShowMnemonic, text()).width() + captionLeft() + 4, markSide + 2 * around};
}

QSize OptionButton::minimumSizeHint() const { return {captionLeft() + 80, markSide + 2 * around}; }

void OptionButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF mark(contentsMargins().left() + 1.5, around + 1.5, markSide - 1, markSide - 1);
  const QColor accent = accentColor(palette());
  const QColor base = palette().color(QPalette::Base);
  painter.setPen(QPen(isChecked() || hasFocus() ? accent : blend(base, palette().color(QPalette::Text), 0.6), 1));
  painter.setBrush(isChecked() ? accent : underMouse() ? blend(base, accent, 0.12) : base);
  painter.drawEllipse(mark);
  if (isChecked()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(readableOn(accent));
    painter.drawEllipse(mark.center(), 2.8, 2.8);
  }
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  painter.drawText(rect().adjusted(captionLeft(), around, 0, 0), flags, text());
  if (!hasFocus()) return;
  painter.setPen(QPen(accent, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(rect()).adjusted(captionLeft() - 3.5, 0.5, -0.5, -0.5), 3, 3);
}

}  // namespace tarnel::qt
