#include "StoredFolder.h"

#include "Conversions.h"
#include "EntryId.h"
#include "Failure.h"
#include "StoredItems.h"

namespace tarnel::mailbox {

StoredFolder::StoredFolder(std::shared_ptr<Mailbox> mailbox, std::int64_t id) : mailbox_(std::move(mailbox)), id_(id) {
  mailbox_->store.requireReach();
  const auto& folders = mailbox_->store.folders();
  const auto found = folders.find(id);
  if (found == folders.end())
    throw Failure(failure::automation, "There is no default folder " + std::to_string(id) + ".", "Outlook.NameSpace");
  name_ = found->second;
}

std::shared_ptr<outlook::Items> StoredFolder::items() {
  ItemQuery all;
  all.folder = id_;
  return std::make_shared<StoredItems>(mailbox_, std::move(all));
}

std::string StoredFolder::StoreID() const { return storeIdText(mailbox_->store); }

std::string storeIdText(const Store& store) { return hexText(Bytes(store.id().begin(), store.id().end())); }

}  // namespace tarnel::mailbox
