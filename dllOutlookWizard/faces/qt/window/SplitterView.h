#pragma once

#include <QWidget>
#include <vector>

#include "SSSplitter.h"
#include "ViewSite.h"

namespace tarnel::qt {

// The bar between two panes: follows the mouse, or the arrow keys while it has the focus.
class SplitterBar : public QWidget {
 public:
  SplitterBar(SSSplitter& control, ViewSite& site, QWidget* parent);

  void place();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  SSSplitter::Pane& leftPane() const { return control_.Panes("Left"); }
  float draggedWidth(const QMouseEvent& event) const;

  SSSplitter& control_;
  ViewSite& site_;
  int grip_ = 0;  // where on the bar the mouse holds it, in pixels
};

// Holds the panes' contents, which the splitter places itself.
class SplitterView : public QWidget {
 public:
  SplitterView(SSSplitter& control, ViewSite& site, QWidget* parent);

  SplitterBar& bar() const { return *bar_; }

 private:
  SplitterBar* bar_;
  std::vector<Connection> connections_;
};

}  // namespace tarnel::qt
