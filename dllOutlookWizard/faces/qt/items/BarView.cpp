#include "BarView.h"

#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionButton>
#include <algorithm>

#include "BarButton.h"
#include "Colors.h"
#include "QtText.h"

namespace tarnel::qt {
namespace {

constexpr int placeGap = 2;
constexpr int edge = 3;
constexpr int separatorWidth = 5;
constexpr int overflowWidth = 24;
constexpr int tallestButton = 26;

constexpr int mostPixelsOff = 2;  // of the font's size, before a caption goes into the menu

QFont smallerFont(int pixelsOff) {
  QFont font = formFont();
  font.setPixelSize(font.pixelSize() - pixelsOff);
  return font;
}

// Its caption tells of the menu: it has no arrow beside it.
class OverflowButton : public QPushButton {
 public:
  explicit OverflowButton(QWidget* parent) : QPushButton(QStringLiteral("\u00BB"), parent) {}

 protected:
  void initStyleOption(QStyleOptionButton* option) const override {
    QPushButton::initStyleOption(option);
    option->features &= ~QStyleOptionButton::HasMenu;
  }
};

}  // namespace

BarView::BarView(SmartUI& control, ViewSite& site, QWidget* parent)
    : ItemsPanel(control, site, parent), overflow_(new OverflowButton(this)) {
  overflow_->setAccessibleName(tr("More commands"));
  overflow_->setToolTip(tr("More commands"));
  auto* menu = new QMenu(overflow_);
  menu->setToolTipsVisible(true);
  connect(menu, &QMenu::aboutToShow, this, [this] { fillOverflow(); });
  overflow_->setMenu(menu);
  overflow_->hide();
  build();
}

void BarView::build() {
  for (const Place& place : places_) {
    place.widget->hide();
    place.widget->deleteLater();
  }
  places_.clear();
  for (SmartItem& item : control().Items())
    if (QWidget* widget = makeWidget(item)) places_.push_back({&item, widget, 0});
  overflow_->raise();  // the last for the Tab key, too
  arrangeWhereSized();
}

QWidget* BarView::makeWidget(SmartItem& item) {
  switch (item.Type()) {
    case SmartItemType::button:
    case SmartItemType::toggleButton:
    case SmartItemType::option:
    case SmartItemType::checkBox:
    case SmartItemType::menu:
      return new BarButton(control(), item, site(), this);
    case SmartItemType::label:
    case SmartItemType::group:
    case SmartItemType::note:
      return makeLabel(item);
    case SmartItemType::separator:
      return new QWidget(this);
    default:
      return nullptr;
  }
}

QWidget* BarView::makeLabel(const SmartItem& item) {
  auto* label = new QLabel(text(item.Caption()), this);
  label->setTextFormat(Qt::PlainText);
  label->setToolTip(qt::toolTip(text(item.ToolTipText())));
  return label;
}

void BarView::show(SmartItem& item) {
  for (const Place& place : places_) {
    if (place.item != &item) continue;
    if (auto* button = dynamic_cast<BarButton*>(place.widget)) button->showState();
    if (auto* label = dynamic_cast<QLabel*>(place.widget)) label->setText(text(item.Caption()));
  }
  arrangeWhereSized();
}

// A line between two groups goes with the group after it, up to the next line.
bool BarView::dividesNothing(const Place& separator) const {
  auto next = std::ranges::find(places_, separator.item, &Place::item);
  while (++next != places_.end() && next->item->Type() != SmartItemType::separator)
    if (next->item->Visible()) return false;
  return true;
}

int BarView::bareWidthOf(const Place& place) const {
  const bool separates = place.item->Type() == SmartItemType::separator;
  if (!place.item->Visible() || (separates && dividesNothing(place))) return 0;
  if (const auto* button = dynamic_cast<BarButton*>(place.widget)) return button->widthWith(0) + placeGap;
  if (separates) return separatorWidth + placeGap;
  return place.widget->sizeHint().width() + placeGap;
}

int BarView::widthOf(const Place& place, int padding) const {
  const bool padded = place.bareWidth > 0 && dynamic_cast<BarButton*>(place.widget);
  return place.bareWidth + (padded ? 2 * padding : 0);
}

int BarView::widthOfAll(int padding) const {
  int sum = 2 * edge;
  for (const Place& place : places_) sum += widthOf(place, padding);
  return sum;
}

void BarView::useFont(const QFont& font) {
  for (Place& place : places_) {
    QFont own = font;
    own.setBold(place.item->Bold());
    place.widget->setFont(own);
    place.bareWidth = bareWidthOf(place);
  }
}

int BarView::fittingPadding() {
  for (int pixelsOff = 0; pixelsOff <= mostPixelsOff; ++pixelsOff) {
    useFont(smallerFont(pixelsOff));
    for (int padding = BarButton::widestPadding; padding >= BarButton::narrowPadding; --padding)
      if (widthOfAll(padding) <= width()) return padding;
  }
  return BarButton::narrowestPadding;
}

void BarView::arrangeWhereSized() {
  if (!testAttribute(Qt::WA_PendingResizeEvent)) arrange();
}

void BarView::arrange() {
  const int padding = fittingPadding();
  const bool allFit = widthOfAll(padding) <= width();
  const int end = width() - edge - (allFit ? 0 : overflowWidth);
  const int high = std::min(height() - 2, tallestButton);
  const int top = (height() - high) / 2;
  overflowing_.clear();
  int left = edge;
  for (const Place& place : places_) {
    const int wide = widthOf(place, padding);
    const bool fits = overflowing_.empty() && left + wide <= end;
    if (!fits && wide > 0) overflowing_.push_back(place.item);
    place.widget->setGeometry(left, top, std::max(wide - placeGap, 0), high);
    place.widget->setVisible(fits && wide > 0);
    if (fits) left += wide;
  }
  overflow_->setGeometry(width() - edge - overflowWidth + placeGap, top, overflowWidth - placeGap, high);
  overflow_->setVisible(!overflowing_.empty());
  update();
}

void BarView::fillOverflow() {
  QMenu& menu = *overflow_->menu();
  menu.clear();
  catchUp();
  for (SmartItem* item : overflowing_) {
    if (item->Type() == SmartItemType::separator) menu.addSeparator();
    if (item->Type() == SmartItemType::menu) fillMenu(*menu.addMenu(text(item->Caption())), control(), *item, site());
    if (!dynamic_cast<BarButton*>(std::ranges::find(places_, item, &Place::item)->widget)) continue;
    if (item->Type() == SmartItemType::menu) continue;
    QAction* action = menu.addAction(text(item->Caption()));
    action->setToolTip(text(item->ToolTipText()));
    QFont font = menu.font();
    font.setBold(item->Bold());
    action->setFont(font);
    action->setCheckable(item->Type() != SmartItemType::button);
    action->setChecked(item->Checked());
    connect(action, &QAction::triggered, this, [this, item] { site().act([&] { control().press(*item); }); });
  }
}

void BarView::resizeEvent(QResizeEvent* event) {
  ItemsPanel::resizeEvent(event);
  catchUp();
  arrange();
}

void BarView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  for (const Place& place : places_)
    if (place.item->Type() == SmartItemType::separator && !place.widget->isHidden())
      painter.fillRect(place.widget->geometry().center().x(), 5, 1, height() - 10, lineColor(palette()));
}

}  // namespace tarnel::qt
