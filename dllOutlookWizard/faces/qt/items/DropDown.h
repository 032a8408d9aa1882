#pragma once

#include <QComboBox>

#include "SmartUI.h"
#include "ViewSite.h"

namespace tarnel::qt {

class ItemsModel;

// A drop-down item: shows its value and lets the user choose one of its entries. Headings can't be chosen; a check
// entry shows its mark and can only be chosen in the open list, since it does something rather than being a value.
class DropDown : public QComboBox {
 public:
  DropDown(SmartUI& control, SmartItem& item, ViewSite& site, QWidget* parent);

  void showState();
  void showPopup() override;

 protected:
  // Arrow keys walk the lasting entries; letters open the list and find one there.
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void choose(int row);
  bool isLasting(int row) const;
  int nextLasting(int from, int step) const;
  int popupWidth() const;

  SmartUI& control_;
  SmartItem& item_;
  ViewSite& site_;
  ItemsModel* entries_;
  Connection onRefresh_;
};

}  // namespace tarnel::qt
