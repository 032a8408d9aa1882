#pragma once

#include "Control.h"
#include "Date.h"

namespace tarnel {

// A box that shows one day and lets the user choose another.
class ctDropDate : public Control {
 public:
  using Control::Control;

  // Whole days.
  tarnel::Date Date() const { return date_; }
  // The time of day is dropped. Raises Change when it is another day than before.
  void setDate(tarnel::Date date);
  // The user's act: raises Change for the day on show, too.
  void choose(tarnel::Date date);

  Signal<> Change;

 private:
  tarnel::Date date_;
};

}  // namespace tarnel
