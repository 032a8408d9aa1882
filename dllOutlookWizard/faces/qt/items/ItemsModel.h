#pragma once

#include <QAbstractListModel>
#include <vector>

#include "SmartUI.h"

namespace tarnel::qt {

// The items of a list or the entries of a drop-down, as Qt's views read them: row n is item n. What happens to the
// items in one go reaches the views in one go, when the event loop comes round or catchUp is called: ten thousand
// added rows are one insertion, ten thousand new check marks one repaint. A row is never read beyond the items there.
class ItemsModel : public QAbstractListModel {
 public:
  enum Role { backColorRole = Qt::UserRole, highlightedRole, pictureRole, toolTipRole, fullCaptionRole };

  // `items` outlives the model.
  explicit ItemsModel(SmartItems& items, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  // None beyond the items there.
  SmartItem* item(int row) const;
  // Tells the views what has happened to the items since.
  void catchUp();

 private:
  void removedOrCleared();
  void changed(const SmartItem& item, SmartItem::Property property);
  void later();

  SmartItems& items_;
  int rows_ = 0;  // what the views have been told
  int firstChanged_ = -1;
  int lastChanged_ = -1;
  bool rearranged_ = false;
  bool waiting_ = false;
  std::vector<Connection> connections_;
};

}  // namespace tarnel::qt
