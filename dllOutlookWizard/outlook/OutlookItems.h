#pragma once

#include <memory>

#include "Redemption.h"

namespace tarnel {

// Whether the item lies in Deleted Items.
bool isThrownAway(const outlook::Item& item);

// The item that Redemption's wrapper holds, which reads past Outlook's guard.
std::unique_ptr<outlook::SafeTaskItem> safeItem(std::shared_ptr<outlook::TaskItem> item);
std::unique_ptr<outlook::SafeAppointmentItem> safeItem(std::shared_ptr<outlook::AppointmentItem> item);

}  // namespace tarnel
