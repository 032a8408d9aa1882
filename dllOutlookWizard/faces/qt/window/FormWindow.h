#pragma once

#include <QWidget>
#include <exception>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "Form.h"
#include "ViewFactory.h"
#include "ViewSite.h"

class QKeyEvent;

namespace tarnel::qt {

// The window of any form: one view for each control, where the form puts it. Whatever the user does to the window goes
// to the form, which alone decides: a size, a key, the close box.
class FormWindow : public QWidget, public ViewSite {
 public:
  // Form and controls outlive the window. Shows nothing yet.
  FormWindow(Form& form, const ViewFactory& views, QWidget* parent);
  ~FormWindow() override;

  // None for a control without a view, or inside a container that has never been seen: what a container holds gets its
  // views when the container first turns visible.
  QWidget* view(const Control& control) const;

  // On the screen where the form says, or in its middle when that place is out of sight.
  void present();

  void act(const std::function<void()>& gesture) override;
  void tabStopsChanged() override;
  std::shared_ptr<ScheduleGroup> schedules() override { return schedules_; }
  // Whether a listener threw at a gesture. From then on gestures do nothing.
  bool hasFailed() const { return broken_; }
  // What it threw, once; none otherwise.
  std::exception_ptr takeFailure() { return std::exchange(failure_, nullptr); }

  // A gesture's listener threw.
  Signal<> failed;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void addViews(const Control* container, QWidget& parent);
  void addView(Control& control, QWidget& made);
  void showOrHide(const Control& control);
  void followForm();
  void tellForm();
  bool formTakesKey(QKeyEvent& event);
  void comeIntoSight();
  void addTabStops(const Control* container, QList<QWidget*>& stops) const;
  void addOwnTabStops(QWidget& top, QList<QWidget*>& stops) const;

  Form& form_;
  const ViewFactory factory_;
  const std::shared_ptr<ScheduleGroup> schedules_;
  std::unordered_map<const Control*, QWidget*> viewOf_;
  std::unordered_set<const Control*> filled_;  // what was visible once: its contents have their views
  std::vector<Connection> connections_;
  std::exception_ptr failure_;
  bool broken_ = false;
  bool placed_ = false;  // before, the window system's own ideas of place and size are of no interest
};

}  // namespace tarnel::qt
