#include "ctDropDate.h"

namespace tarnel {

void ctDropDate::setDate(tarnel::Date date) {
  if (date.wholeDay() == date_) return;
  date_ = date.wholeDay();
  Change();
}

}  // namespace tarnel
