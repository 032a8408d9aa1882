#pragma once

#include "ItemsPanel.h"

class QPushButton;

namespace tarnel::qt {

// A row of buttons, toggles, labels and menus. What has no room goes into a menu at the row's end.
class BarView : public ItemsPanel {
 public:
  BarView(SmartUI& control, ViewSite& site, QWidget* parent);

 protected:
  void build() override;
  void show(SmartItem& item) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Place {
    SmartItem* item = nullptr;
    QWidget* widget = nullptr;
    int bareWidth = 0;  // in its font, without padding; none where it is not to be seen
  };
  QWidget* makeWidget(SmartItem& item);
  QWidget* makeLabel(const SmartItem& item);
  bool dividesNothing(const Place& separator) const;
  int bareWidthOf(const Place& place) const;
  int widthOf(const Place& place, int padding) const;
  int widthOfAll(int padding) const;
  void useFont(const QFont& font);
  // Leaves the buttons with the widest font and padding with which all fit, else with the narrowest.
  int fittingPadding();
  void arrange();
  // Now, or as soon as the bar has the width that is meant for it.
  void arrangeWhereSized();
  void fillOverflow();

  std::vector<Place> places_;
  std::vector<SmartItem*> overflowing_;
  QPushButton* overflow_;
};

}  // namespace tarnel::qt
