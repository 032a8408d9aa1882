#pragma once

#include "ClassFactory.h"

namespace tarnel::test {

// A machine without Outlook and Redemption: every operation fails with 429.
class NoOutlook : public outlook::ClassFactory {
 public:
  std::shared_ptr<outlook::Application> activeApplication() override;
  std::shared_ptr<outlook::Application> createApplication() override;
  std::unique_ptr<outlook::SafeTaskItem> createSafeTaskItem() override;
  std::unique_ptr<outlook::SafeAppointmentItem> createSafeAppointmentItem() override;
  std::unique_ptr<outlook::MAPITable> createMAPITable() override;
  std::unique_ptr<outlook::MAPIUtils> createMAPIUtils() override;
};

}  // namespace tarnel::test
