#pragma once

#include <QPushButton>

#include "SmartUI.h"
#include "ViewSite.h"

namespace tarnel::qt {

// A button of a bar: presses its item. Where the item has entries, the arrow at the button's end or the key Down opens
// their menu.
class BarButton : public QPushButton {
 public:
  static constexpr int widestPadding = 9;  // pixels at each side of the caption
  static constexpr int narrowPadding = 3;
  static constexpr int narrowestPadding = 2;  // where even the smallest font does not fit otherwise

  BarButton(SmartUI& control, SmartItem& item, ViewSite& site, QWidget* parent);

  // Caption, check, tool tip and picture, as the item has them now.
  void showState();
  // How wide it wants to be with this padding.
  int widthWith(int padding) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  QSize sizeHint() const override;

 private:
  bool opensMenu() const { return entries_ != nullptr; }
  void openMenu();
  bool hasPicture() const;
  QColor ground() const;

  SmartItem& item_;
  QMenu* entries_ = nullptr;
};

// Fills `menu` with the entries that can be seen; choosing one presses it.
void fillMenu(QMenu& menu, SmartUI& control, SmartItem& item, ViewSite& site);

}  // namespace tarnel::qt
