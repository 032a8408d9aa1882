#pragma once

#include <memory>

#include "ClassFactory.h"
#include "OutlookInstallation.h"

namespace tarnel::mailbox {

// The embedded Outlook. It runs as long as somebody, in this process or another one, holds an Application that
// createApplication gave, or a RunningOutlook.
class OutlookFactory : public outlook::ClassFactory {
 public:
  // `clock` must outlive the factory and all its objects.
  OutlookFactory(ProfileLookup profiles, std::filesystem::path defaultMailbox, Locale locale, const Clock& clock);

  std::shared_ptr<outlook::Application> activeApplication() override;
  std::shared_ptr<outlook::Application> createApplication() override;
  std::unique_ptr<outlook::SafeTaskItem> createSafeTaskItem() override;
  std::unique_ptr<outlook::SafeAppointmentItem> createSafeAppointmentItem() override;
  std::unique_ptr<outlook::MAPITable> createMAPITable() override;
  std::unique_ptr<outlook::MAPIUtils> createMAPIUtils() override;

 private:
  std::shared_ptr<OutlookInstallation> installation_;
};

}  // namespace tarnel::mailbox
