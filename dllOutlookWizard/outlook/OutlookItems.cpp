#include "OutlookItems.h"

#include "ClassFactory.h"
#include "Platform.h"

namespace tarnel {

bool isThrownAway(const outlook::Item& item) { return item.ParentName() == "Deleted Items"; }

std::unique_ptr<outlook::SafeTaskItem> safeItem(std::shared_ptr<outlook::TaskItem> item) {
  auto wrapper = platform().outlook.createSafeTaskItem();
  wrapper->setItem(std::move(item));
  return wrapper;
}

std::unique_ptr<outlook::SafeAppointmentItem> safeItem(std::shared_ptr<outlook::AppointmentItem> item) {
  auto wrapper = platform().outlook.createSafeAppointmentItem();
  wrapper->setItem(std::move(item));
  return wrapper;
}

}  // namespace tarnel
