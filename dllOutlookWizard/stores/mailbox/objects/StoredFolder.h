#pragma once

#include <memory>
#include <string>

#include "Folder.h"
#include "Mailbox.h"

namespace tarnel::mailbox {

class StoredFolder : public outlook::Folder {
 public:
  // Failure 440 for a number that no folder has.
  StoredFolder(std::shared_ptr<Mailbox> mailbox, std::int64_t id);

  std::string Name() const override { return name_; }
  std::shared_ptr<outlook::Items> items() override;
  std::string StoreID() const override;

 private:
  std::shared_ptr<Mailbox> mailbox_;
  std::int64_t id_;
  std::string name_;
};

// Upper-case hexadecimal text.
std::string storeIdText(const Store& store);

}  // namespace tarnel::mailbox
