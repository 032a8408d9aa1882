#pragma once

#include <functional>
#include <memory>

namespace tarnel::qt {

struct ScheduleGroup;

// What a view calls on in the window that holds it.
class ViewSite {
 public:
  virtual ~ViewSite() = default;
  // Does what the user asked for. Everything that a gesture calls on a control goes through here: an exception of the
  // control's listeners must not run through Qt's event loop; the window closes and hands it on to whoever showed it.
  virtual void act(const std::function<void()>& gesture) = 0;
  // The view has made its widgets again.
  virtual void tabStopsChanged() = 0;
  // What the window's schedules share. A view holds on to it, since it may outlive the site.
  virtual std::shared_ptr<ScheduleGroup> schedules() = 0;
};

}  // namespace tarnel::qt
