#include "BarButton.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include "Colors.h"
#include "Pictures.h"
#include "QtText.h"

namespace tarnel::qt {
namespace {
constexpr int pictureSide = 16;
constexpr int pictureGap = 4;
constexpr int arrowRoom = 12;
}  // namespace

void fillMenu(QMenu& menu, SmartUI& control, SmartItem& item, ViewSite& site) {
  menu.clear();
  for (SmartItem& entry : item.SubItems()) {
    if (!entry.Visible()) continue;
    if (entry.Type() == SmartItemType::separator) {
      menu.addSeparator();
      continue;
    }
    QAction* action = menu.addAction(text(entry.Caption()));
    action->setToolTip(text(entry.ToolTipText()));
    action->setIcon(pictureIcon(entry.Picture()));
    action->setEnabled(entry.Type() != SmartItemType::group && entry.Type() != SmartItemType::label);
    if (entry.Type() == SmartItemType::checkRow || entry.Type() == SmartItemType::checkBox) {
      action->setCheckable(true);
      action->setChecked(entry.Checked());
    }
    SmartItem* pressed = &entry;
    QObject::connect(action, &QAction::triggered, &menu,
                     [&control, &site, pressed] { site.act([&] { control.press(*pressed); }); });
  }
}

BarButton::BarButton(SmartUI& control, SmartItem& item, ViewSite& site, QWidget* parent)
    : QPushButton(parent), item_(item) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setFont(formFont());
  connect(this, &QPushButton::clicked, this, [&control, &item, &site] { site.act([&] { control.press(item); }); });
  if (item.Type() == SmartItemType::menu) {
    entries_ = new QMenu(this);
    connect(entries_, &QMenu::aboutToShow, this,
            [this, &control, &item, &site] { fillMenu(*entries_, control, item, site); });
  }
  showState();
}

void BarButton::openMenu() { entries_->popup(mapToGlobal(rect().bottomLeft())); }

void BarButton::mousePressEvent(QMouseEvent* event) {
  const bool onArrow = event->position().x() >= width() - arrowRoom;
  if (opensMenu() && onArrow && event->button() == Qt::LeftButton)
    openMenu();
  else
    QPushButton::mousePressEvent(event);
}

void BarButton::keyPressEvent(QKeyEvent* event) {
  if (opensMenu() && event->key() == Qt::Key_Down)
    openMenu();
  else
    QPushButton::keyPressEvent(event);
}

void BarButton::showState() {
  setText(qt::text(item_.Caption()));
  setToolTip(qt::toolTip(qt::text(item_.ToolTipText())));
  setAccessibleDescription(qt::text(item_.ToolTipText()));
  if (item_.Type() == SmartItemType::toggleButton)
    setAccessibleName(item_.Checked() ? tr("%1, on").arg(text()) : text());
  updateGeometry();
  update();
}

bool BarButton::hasPicture() const { return !item_.Picture().empty() && item_.Picture() != "NONE"; }

int BarButton::widthWith(int padding) const {
  return fontMetrics().size(Qt::TextShowMnemonic, text()).width() + 2 * padding +
         (hasPicture() ? pictureSide + pictureGap : 0) + (opensMenu() ? arrowRoom : 0);
}

QSize BarButton::sizeHint() const { return {widthWith(widestPadding), fontMetrics().height() + 6}; }

QColor BarButton::ground() const {
  const QColor plain = blend(palette().color(QPalette::Button), Qt::white, isDark(palette()) ? 0 : 0.65);
  const QColor accent = accentColor(palette());
  if (isDown()) return blend(plain, accent, 0.40);
  if (item_.Checked()) return blend(plain, accent, isDark(palette()) ? 0.50 : 0.28);
  return underMouse() && isEnabled() ? blend(plain, accent, 0.14) : plain;
}

void BarButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor fill = ground();
  const bool lively = hasFocus() || item_.Checked();
  painter.setPen(QPen(lively ? accentColor(palette()) : lineColor(palette()), 1));
  painter.setBrush(fill);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3.5, 3.5);
  if (hasFocus()) {
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 2.5, 2.5);
  }
  QRect inside = rect();
  if (opensMenu()) inside.setRight(inside.right() - arrowRoom);
  if (hasPicture()) {
    const int left = (inside.width() - widthWith(0) + (opensMenu() ? arrowRoom : 0)) / 2;
    paintPicture(painter, QRectF(left, (height() - pictureSide) / 2.0, pictureSide, pictureSide), item_.Picture());
    inside.setLeft(left + pictureSide + pictureGap);
  }
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
  painter.drawText(inside,
                   static_cast<int>(hasPicture() ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter) |
                       Qt::TextShowMnemonic | Qt::TextSingleLine,
                   text());
  if (!opensMenu()) return;
  QPainterPath arrow(QPointF(inside.right() + 0.5, height() / 2.0 - 1.5));
  arrow.lineTo(inside.right() + 4, height() / 2.0 + 2);
  arrow.lineTo(inside.right() + 7.5, height() / 2.0 - 1.5);
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(arrow);
}

}  // namespace tarnel::qt
