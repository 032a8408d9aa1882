#pragma once

#include <QWidget>

#include "ViewSite.h"
#include "ctDropDate.h"

class QDateEdit;
class QPushButton;

namespace tarnel::qt {

// A date to type or to pick from a calendar, with buttons for the day before, today and the day after where there is
// room for them.
class DropDateView : public QWidget {
 public:
  DropDateView(ctDropDate& control, ViewSite& site, QWidget* parent);

  QDateEdit& edit() const { return *edit_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QPushButton* addButton(const QString& caption, const QString& name);
  void choose(Date date);
  void showState();

  ctDropDate& control_;
  ViewSite& site_;
  QDateEdit* edit_;
  QPushButton* before_;
  QPushButton* today_;
  QPushButton* after_;
  Connection onChange_;
};

}  // namespace tarnel::qt
