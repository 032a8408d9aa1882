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
  // The user's act: raises Change for the day on show, too. A day that can't be shown changes nothing.
  void choose(tarnel::Date date);
  static bool canShow(tarnel::Date date) { return tarnel::Date::canBe(date.days) && date.wholeDay() <= lastDayShown(); }

  Signal<> Change;

 private:
  tarnel::Date date_;
};

}  // namespace tarnel
