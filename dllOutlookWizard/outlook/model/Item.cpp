#include "Item.h"

#include "Failure.h"

namespace tarnel::outlook {
namespace {

template <class Wanted>
std::shared_ptr<Wanted> as(const std::shared_ptr<Item>& item) {
  if (!item) failObjectNotSet();
  auto wanted = std::dynamic_pointer_cast<Wanted>(item);
  if (!wanted) throw Failure(failure::noSuchProperty, "Object doesn't support this property or method");
  return wanted;
}

}  // namespace

std::shared_ptr<TaskItem> asTask(const std::shared_ptr<Item>& item) { return as<TaskItem>(item); }

std::shared_ptr<AppointmentItem> asAppointment(const std::shared_ptr<Item>& item) { return as<AppointmentItem>(item); }

}  // namespace tarnel::outlook
