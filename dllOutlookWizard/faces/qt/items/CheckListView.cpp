#include "CheckListView.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>

#include "CheckRowDelegate.h"
#include "ItemsModel.h"
#include "QtText.h"
#include "ScrollBar.h"

namespace tarnel::qt {

CheckListView::CheckListView(SmartUI& control, ViewSite& site, QWidget* parent)
    : QListView(parent), control_(control), site_(site), items_(new ItemsModel(control.Items(), this)) {
  setUniformItemSizes(true);
  setMouseTracking(true);
  setFrameShape(QFrame::NoFrame);
  setVerticalScrollBar(new ScrollBar(Qt::Vertical, this));
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setEditTriggers(NoEditTriggers);
  setItemDelegate(new CheckRowDelegate(this));
  setModel(items_);
  showTitle();
  hideRows(0, items_->rowCount() - 1);
  connect(this, &QListView::clicked, this, [this](const QModelIndex& index) { press(index.row()); });
  connect(items_, &QAbstractItemModel::modelAboutToBeReset, this, [this] { scrolled_ = verticalScrollBar()->value(); });
  connect(items_, &QAbstractItemModel::modelReset, this, [this] { keepPlace(); });
  connect(items_, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex&, int first, int last) {
    hideRows(first, last);
    executeDelayedItemsLayout();  // a list that grows throughout a run would stay blank until its end
  });
  connect(items_, &QAbstractItemModel::dataChanged, this,
          [this](const QModelIndex& first, const QModelIndex& last) { hideRows(first.row(), last.row()); });
  connections_.push_back(control.displayPositionReset.connect([this] {
    items_->catchUp();
    scrollToTop();
  }));
  connections_.push_back(control.refreshed.connect([this] { viewport()->update(); }));
}

void CheckListView::showTitle() {
  if (control_.title().empty()) return;
  title_ = new QLabel(text(control_.title()), this);
  title_->setTextFormat(Qt::PlainText);
  title_->setContentsMargins(6, 2, 6, 2);
  setViewportMargins(0, title_->sizeHint().height(), 0, 0);
}

void CheckListView::resizeEvent(QResizeEvent* event) {
  QListView::resizeEvent(event);
  if (title_) title_->setGeometry(0, 0, width(), title_->sizeHint().height());
}

void CheckListView::press(int row) {
  items_->catchUp();
  SmartItem* item = items_->item(row);
  if (item) site_.act([this, item] { control_.press(*item); });
}

void CheckListView::keyPressEvent(QKeyEvent* event) {
  items_->catchUp();
  if (event->key() == Qt::Key_Space && currentIndex().isValid())
    press(currentIndex().row());
  else
    QListView::keyPressEvent(event);
}

void CheckListView::mousePressEvent(QMouseEvent* event) {
  items_->catchUp();
  QListView::mousePressEvent(event);
}

void CheckListView::focusInEvent(QFocusEvent* event) {
  QListView::focusInEvent(event);
  items_->catchUp();
  if (currentIndex().isValid()) return;
  const QModelIndex first = moveCursor(MoveHome, Qt::NoModifier);
  if (first.isValid()) setCurrentIndex(first);
}

void CheckListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  const SmartItem* item = current.isValid() ? items_->item(current.row()) : nullptr;
  if (item) currentKey_ = item->Key();
}

void CheckListView::hideRows(int first, int last) {
  for (int row = first; row <= last; ++row) {
    const SmartItem* item = items_->item(row);
    const bool hide = item && !item->Visible();
    if (hide != isRowHidden(row)) setRowHidden(row, hide);
  }
}

void CheckListView::keepPlace() {
  hideRows(0, items_->rowCount() - 1);
  if (!currentKey_.empty() && control_.Items().Exists(currentKey_)) {
    const int row = static_cast<int>(control_.Items().Item(currentKey_).Index());
    selectionModel()->setCurrentIndex(items_->index(row), QItemSelectionModel::ClearAndSelect);
  }
  executeDelayedItemsLayout();
  verticalScrollBar()->setValue(scrolled_);
}

}  // namespace tarnel::qt
