#pragma once

#include <QListView>
#include <string>
#include <vector>

#include "SmartUI.h"
#include "ViewSite.h"

class QLabel;

namespace tarnel::qt {

class ItemsModel;

// A check list: a click or the space bar toggles the row, letters find one. Stays where it is, on the row it is on,
// while rows come and go.
class CheckListView : public QListView {
 public:
  CheckListView(SmartUI& control, ViewSite& site, QWidget* parent);

  ItemsModel& items() const { return *items_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void press(int row);
  void showTitle();
  void hideRows(int first, int last);
  void keepPlace();

  SmartUI& control_;
  ViewSite& site_;
  ItemsModel* items_;
  QLabel* title_ = nullptr;
  std::string currentKey_;
  int scrolled_ = 0;
  std::vector<Connection> connections_;
};

}  // namespace tarnel::qt
