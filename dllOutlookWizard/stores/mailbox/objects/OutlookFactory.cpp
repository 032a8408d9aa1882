#include "OutlookFactory.h"

#include "Conversions.h"
#include "EntryIdText.h"
#include "Failure.h"
#include "MailboxTable.h"
#include "OutlookSession.h"
#include "SafeItems.h"
#include "makeItem.h"

namespace tarnel::mailbox {
namespace {

class OutlookApplication : public outlook::Application {
 public:
  explicit OutlookApplication(std::shared_ptr<OutlookSession> session) : session_(std::move(session)) {}

  std::shared_ptr<outlook::NameSpace> GetNamespace(std::string_view type) override {
    if (!equalsIgnoringCase(type, "MAPI"))
      throw Failure(failure::invalidCall, "There is no namespace \"" + std::string(type) + "\".",
                    "Outlook.Application");
    return session_;
  }
  std::shared_ptr<outlook::NameSpace> Session() override { return session_; }
  std::shared_ptr<outlook::Item> CreateItem(outlook::ItemType type) override {
    if (type != outlook::ItemType::task && type != outlook::ItemType::appointment)
      throw Failure(failure::invalidCall, "There are no items of that kind.", "Outlook.Application");
    return makeNewItem(session_->mailbox(), type);
  }

 private:
  std::shared_ptr<OutlookSession> session_;
};

}  // namespace

OutlookFactory::OutlookFactory(ProfileLookup profiles, std::filesystem::path defaultMailbox, Locale locale,
                               const Clock& clock)
    : installation_(std::make_shared<OutlookInstallation>(std::move(profiles), std::move(defaultMailbox),
                                                          std::move(locale), clock)) {}

std::shared_ptr<outlook::Application> OutlookFactory::activeApplication() {
  if (!installation_->isRunning())
    throw Failure(failure::noSuchObject, "ActiveX component can't create object: Outlook isn't running.",
                  "Outlook.Application");
  return std::make_shared<OutlookApplication>(std::make_shared<OutlookSession>(installation_, nullptr));
}

std::shared_ptr<outlook::Application> OutlookFactory::createApplication() {
  return std::make_shared<OutlookApplication>(std::make_shared<OutlookSession>(installation_, installation_->start()));
}

std::unique_ptr<outlook::SafeTaskItem> OutlookFactory::createSafeTaskItem() {
  return std::make_unique<SafeStoredTask>();
}

std::unique_ptr<outlook::SafeAppointmentItem> OutlookFactory::createSafeAppointmentItem() {
  return std::make_unique<SafeStoredAppointment>();
}

std::unique_ptr<outlook::MAPITable> OutlookFactory::createMAPITable() { return std::make_unique<MailboxTable>(); }

std::unique_ptr<outlook::MAPIUtils> OutlookFactory::createMAPIUtils() { return std::make_unique<EntryIdText>(); }

}  // namespace tarnel::mailbox
