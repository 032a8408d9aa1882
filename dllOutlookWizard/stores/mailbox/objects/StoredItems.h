#pragma once

#include <memory>
#include <string>

#include "Folder.h"
#include "ItemCursor.h"
#include "ItemQuery.h"
#include "Mailbox.h"

namespace tarnel::mailbox {

// A folder's items in the store. It holds a question, not items: each is read when it is asked for.
class StoredItems : public outlook::Items, private outlook::mapi::Contents {
 public:
  StoredItems(std::shared_ptr<Mailbox> mailbox, ItemQuery query);

  std::int32_t Count() override;
  std::shared_ptr<outlook::Item> Item(std::int32_t index) override;
  std::shared_ptr<outlook::Items> Restrict(std::string_view filter) override;
  void Sort(std::string_view property) override;
  void setIncludeRecurrences(bool include) override;
  std::shared_ptr<outlook::Item> GetFirst() override;
  std::shared_ptr<outlook::Item> GetNext() override;
  outlook::mapi::Contents& MAPIOBJECT() override { return *this; }

 private:
  std::vector<std::int64_t> find(const std::vector<outlook::mapi::PropertyCondition>& conditions) override;
  std::optional<outlook::mapi::Row> row(std::int64_t number) override;

  ItemCursor& cursor();
  std::shared_ptr<outlook::Item> object(std::optional<ItemRecord> item) const;

  std::shared_ptr<Mailbox> mailbox_;
  ItemQuery query_;
  std::unique_ptr<ItemCursor> cursor_;
};

}  // namespace tarnel::mailbox
