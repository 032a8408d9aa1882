#pragma once

#include <QStyledItemDelegate>

namespace tarnel::qt {

// Draws a row of a check list: box, picture, caption on one line, on the row's own ground.
class CheckRowDelegate : public QStyledItemDelegate {
 public:
  static constexpr int rowHeight = 22;  // pixels

  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  // The row's own tip, below the whole caption where that doesn't fit.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;
};

}  // namespace tarnel::qt
