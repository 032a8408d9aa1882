#pragma once

#include <QString>

#include "ItemsPanel.h"

class QGridLayout;
class QLabel;
class QScrollArea;

namespace tarnel::qt {

// Labelled drop-downs, options under headings, notes: one below the other, scrolled when they need more room.
class FormItemsView : public ItemsPanel {
 public:
  FormItemsView(SmartUI& control, ViewSite& site, QWidget* parent);

 protected:
  void build() override;
  void show(SmartItem& item) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Row {
    SmartItem* item;
    QWidget* widget;
    QLabel* caption;  // of a drop-down that has its own; none otherwise
  };
  void addTitle(QGridLayout& rows, QWidget& page) const;
  void addRow(QGridLayout& rows, QWidget& page, SmartItem& item);
  void addDropDown(QGridLayout& rows, QWidget& page, SmartItem& item);
  QWidget* makeWidget(SmartItem& item, QWidget& page);
  void keepFocus(const std::string& key);
  std::string focusedKey() const;

  QScrollArea* area_;
  std::vector<Row> rows_;
  QLabel* label_ = nullptr;  // waits for the drop-down that it is beside
};

}  // namespace tarnel::qt
