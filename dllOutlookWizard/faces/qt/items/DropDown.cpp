#include "DropDown.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QListView>
#include <QProxyStyle>
#include <QStyledItemDelegate>
#include <algorithm>

#include "Conversions.h"
#include "ItemsModel.h"
#include "QtText.h"
#include "ScrollBar.h"

namespace tarnel::qt {
namespace {

constexpr int visibleEntries = 18;
constexpr int narrowestBox = 70;  // pixels
constexpr int widestPopup = 420;  // pixels
constexpr int besideText = 48;    // check mark, margins and scroll bar

// The list below the box with a scroll bar: one that covers the box and creeps by arrows can't hold thousands.
class ListPopupStyle : public QProxyStyle {
 public:
  ListPopupStyle() : QProxyStyle(QApplication::style()->name()) {}
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override {
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
  }
};

}  // namespace

DropDown::DropDown(SmartUI& control, SmartItem& item, ViewSite& site, QWidget* parent)
    : QComboBox(parent), control_(control), item_(item), site_(site), entries_(new ItemsModel(item.SubItems(), this)) {
  auto* popupStyle = new ListPopupStyle;
  popupStyle->setParent(this);
  setStyle(popupStyle);
  auto* list = new QListView(this);
  list->setUniformItemSizes(true);
  list->setVerticalScrollBar(new ScrollBar(Qt::Vertical, list));
  list->setTextElideMode(Qt::ElideRight);
  setView(list);
  setItemDelegate(new QStyledItemDelegate(this));
  setFont(formFont());
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumWidth(narrowestBox);  // else a long value would push the box out of a narrow pane
  setMaxVisibleItems(visibleEntries);
  setFocusPolicy(Qt::StrongFocus);
  setModel(entries_);
  connect(this, &QComboBox::activated, this, [this](int row) { choose(row); });
  connect(entries_, &QAbstractItemModel::modelReset, this, [this] { showState(); });
  connect(entries_, &QAbstractItemModel::rowsInserted, this, [this] { showState(); });
  onRefresh_ = control.refreshed.connect([this] { update(); });
  showState();
}

void DropDown::showState() {
  const std::string value = textOrEmpty(item_.Value());
  int current = -1;
  for (int row = 0; row < entries_->rowCount() && current < 0; ++row)
    if (isLasting(row) && entries_->item(row)->Caption() == value) current = row;
  setPlaceholderText(oneLine(value));
  setCurrentIndex(current);
  setToolTip(qt::toolTip(text(item_.ToolTipText())));
}

void DropDown::choose(int row) {
  entries_->catchUp();
  SmartItem* entry = entries_->item(row);
  if (!entry) return;
  const std::string key = item_.Key();
  site_.act([this, entry] { control_.choose(item_, *entry); });
  // The choice may have removed the item, and this view is on its way out then.
  if (control_.Items().Exists(key) && &control_.Items().Item(key) == &item_) showState();
}

bool DropDown::isLasting(int row) const {
  const SmartItem* entry = entries_->item(row);
  return entry && entry->Type() == SmartItemType::dropDownEntry && entry->Visible();
}

int DropDown::nextLasting(int from, int step) const {
  for (int row = from + step; row >= 0 && row < entries_->rowCount(); row += step)
    if (isLasting(row)) return row;
  return -1;
}

int DropDown::popupWidth() const {
  int widest = 0;
  for (int row = 0; row < entries_->rowCount() && widest < widestPopup; ++row)
    widest = std::max(widest, fontMetrics().horizontalAdvance(itemText(row)) + besideText);
  return std::max(width(), std::min(widest, widestPopup));
}

void DropDown::showPopup() {
  entries_->catchUp();
  auto& list = static_cast<QListView&>(*view());
  for (int row = 0; row < entries_->rowCount(); ++row) {
    const bool hide = !entries_->item(row)->Visible();
    if (list.isRowHidden(row) != hide) list.setRowHidden(row, hide);
  }
  list.setMinimumWidth(popupWidth());
  QComboBox::showPopup();
}

void DropDown::keyPressEvent(QKeyEvent* event) {
  entries_->catchUp();
  const bool plain = !(event->modifiers() & (Qt::AltModifier | Qt::ControlModifier));
  const int count = entries_->rowCount();
  int row = -1;
  switch (plain ? event->key() : 0) {
    case Qt::Key_Up:
      row = nextLasting(currentIndex() < 0 ? count : currentIndex(), -1);
      break;
    case Qt::Key_Down:
      row = nextLasting(currentIndex(), 1);
      break;
    case Qt::Key_Home:
      row = nextLasting(-1, 1);
      break;
    case Qt::Key_End:
      row = nextLasting(count, -1);
      break;
    case Qt::Key_Space:
      return showPopup();
    default:
      if (!plain || event->text().isEmpty() || !event->text().front().isPrint()) return QComboBox::keyPressEvent(event);
      showPopup();
      QApplication::sendEvent(view(), event);
      return;
  }
  if (row >= 0 && row != currentIndex()) choose(row);
}

void DropDown::wheelEvent(QWheelEvent* event) { event->ignore(); }  // scrolls what is around it

void DropDown::mousePressEvent(QMouseEvent* event) {
  entries_->catchUp();
  QComboBox::mousePressEvent(event);
}

}  // namespace tarnel::qt
