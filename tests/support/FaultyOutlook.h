#pragma once

#include "ClassFactory.h"

namespace tarnel::test {

// An Outlook whose every call, on every object that it gives, goes through faults().
class FaultyOutlook : public outlook::ClassFactory {
 public:
  explicit FaultyOutlook(outlook::ClassFactory& real) : real_(real) {}

  std::shared_ptr<outlook::Application> activeApplication() override;
  std::shared_ptr<outlook::Application> createApplication() override;
  std::unique_ptr<outlook::SafeTaskItem> createSafeTaskItem() override;
  std::unique_ptr<outlook::SafeAppointmentItem> createSafeAppointmentItem() override;
  std::unique_ptr<outlook::MAPITable> createMAPITable() override;
  std::unique_ptr<outlook::MAPIUtils> createMAPIUtils() override;

 private:
  outlook::ClassFactory& real_;
};

}  // namespace tarnel::test
