#include "OutlookSession.h"

#include "Failure.h"
#include "ItemLookup.h"
#include "StoredFolder.h"
#include "makeItem.h"

namespace tarnel::mailbox {

void OutlookSession::Logon(const std::optional<std::string>& profile, bool /*showDialog*/) {
  mailbox_.reset();
  mailbox_ = installation_->mailbox(profile);
  if (running_ && profile) running_->setProfile(*profile);
}

std::shared_ptr<outlook::Folder> OutlookSession::GetDefaultFolder(outlook::DefaultFolder folder) {
  return std::make_shared<StoredFolder>(mailbox(), static_cast<std::int64_t>(folder));
}

std::shared_ptr<outlook::Item> OutlookSession::GetItemFromID(std::string_view entryId, std::string_view storeId) {
  return makeItem(mailbox(), itemOfEntryId(*mailbox(), entryId, storeId));
}

const std::shared_ptr<Mailbox>& OutlookSession::mailbox() const {
  if (!mailbox_)
    throw Failure(failure::automation, "Outlook isn't logged on to a mailbox. Log on first.", "Outlook.NameSpace");
  return mailbox_;
}

}  // namespace tarnel::mailbox
