#pragma once

#include <QTabBar>
#include <vector>

#include "SftTabs.h"
#include "ViewSite.h"

namespace tarnel::qt {

// The strip of tabs. Alt with the underlined letter or the arrow keys choose one.
class TabsView : public QTabBar {
 public:
  TabsView(SftTabs& control, ViewSite& site, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  QSize tabSizeHint(int index) const override;

 private:
  void showState();
  void chosen(int index);
  void paintTab(QPainter& painter, int index) const;

  SftTabs& control_;
  ViewSite& site_;
  std::vector<Connection> connections_;
};

}  // namespace tarnel::qt
