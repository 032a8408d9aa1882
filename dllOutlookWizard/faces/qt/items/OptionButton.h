#pragma once

#include <QRadioButton>

#include "SmartUI.h"
#include "ViewSite.h"

namespace tarnel::qt {

// An option with a caption that wraps. What it shows is its item's state, never the click's.
class OptionButton : public QRadioButton {
 public:
  OptionButton(SmartUI& control, SmartItem& item, ViewSite& site, QWidget* parent);

  void showState();
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void nextCheckState() override {}
  bool hitButton(const QPoint& at) const override { return rect().contains(at); }
  void paintEvent(QPaintEvent* event) override;

 private:
  int captionLeft() const;

  SmartItem& item_;
};

}  // namespace tarnel::qt
