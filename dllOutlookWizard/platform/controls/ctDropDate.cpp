#include "ctDropDate.h"

namespace tarnel {

void ctDropDate::setDate(tarnel::Date date) {
  if (date.wholeDay() != date_) choose(date);
}

void ctDropDate::choose(tarnel::Date date) {
  if (!canShow(date)) return;
  date_ = date.wholeDay();
  Change();
}

}  // namespace tarnel
