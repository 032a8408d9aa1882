#pragma once

#include <QWidget>
#include <vector>

#include "SmartUI.h"
#include "ViewSite.h"

namespace tarnel::qt {

// Shows each item of a control as a widget of its own. When items come or go all widgets are made again, at the event
// loop's next round; until then none of the old ones is touched, since its item may be gone.
class ItemsPanel : public QWidget {
 public:
  ItemsPanel(SmartUI& control, ViewSite& site, QWidget* parent);

  // Makes the widgets now if they are out of date.
  void catchUp();

 protected:
  // Makes the widgets of all items, at first in the derived class's constructor. Those made before are the derived
  // class's to drop, with deleteLater, since this may run inside an event of one of them.
  virtual void build() = 0;
  // One item looks different.
  virtual void show(SmartItem& item) = 0;

  SmartUI& control() const { return control_; }
  ViewSite& site() const { return site_; }

 private:
  void outdated();

  SmartUI& control_;
  ViewSite& site_;
  bool outdated_ = false;
  std::vector<Connection> connections_;
};

}  // namespace tarnel::qt
