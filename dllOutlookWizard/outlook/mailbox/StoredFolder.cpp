#include "StoredFolder.h"

#include "EntryId.h"
#include "Failure.h"
#include "StoredItems.h"

namespace tarnel::mailbox {

StoredFolder::StoredFolder(std::shared_ptr<Mailbox> mailbox, std::int64_t id) : mailbox_(std::move(mailbox)), id_(id) {
  mailbox_->store.requireReach();
  StoreStatement rows = mailbox_->store.prepare("SELECT name FROM folders WHERE id = ?");
  if (!rows.bind(id).step())
    throw Failure(failure::automation, "There is no default folder " + std::to_string(id) + ".", "Outlook.NameSpace");
  name_ = rows.text(0);
}

std::shared_ptr<outlook::Items> StoredFolder::items() {
  ItemQuery all;
  all.folder = id_;
  return std::make_shared<StoredItems>(mailbox_, std::move(all));
}

std::string StoredFolder::StoreID() const { return storeIdText(mailbox_->store); }

std::string storeIdText(const Store& store) { return hexText(Bytes(store.id().begin(), store.id().end())); }

std::int64_t folderNamed(Store& store, std::string_view name) {
  StoreStatement rows = store.prepare("SELECT id FROM folders WHERE name = ? COLLATE NOCASE");
  if (rows.bind(name).step()) return rows.number(0);
  throw Failure(failure::automation,
                "There is no folder \"" + std::string(name) + "\". There are Tasks, Calendar and Deleted Items.",
                "Tarnel.Mailbox");
}

}  // namespace tarnel::mailbox
