#pragma once

#include <memory>

#include "Application.h"
#include "Redemption.h"

namespace tarnel::outlook {

// Where the objects of Outlook and Redemption come from. Each operation fails with 429 when its object can't be made.
class ClassFactory {
 public:
  virtual ~ClassFactory() = default;

  // The running Outlook; fails when none runs, and starts none.
  virtual std::shared_ptr<Application> activeApplication() = 0;
  // A new object; starts Outlook when it isn't running.
  virtual std::shared_ptr<Application> createApplication() = 0;

  virtual std::unique_ptr<SafeTaskItem> createSafeTaskItem() = 0;
  virtual std::unique_ptr<SafeAppointmentItem> createSafeAppointmentItem() = 0;
  virtual std::unique_ptr<MAPITable> createMAPITable() = 0;
  virtual std::unique_ptr<MAPIUtils> createMAPIUtils() = 0;
};

}  // namespace tarnel::outlook
