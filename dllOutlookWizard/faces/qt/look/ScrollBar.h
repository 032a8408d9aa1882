#pragma once

#include <QScrollBar>

namespace tarnel::qt {

// A scroll bar whose handle is easy to see on the ground of lists, light or dark.
class ScrollBar : public QScrollBar {
 public:
  using QScrollBar::QScrollBar;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tarnel::qt
