#pragma once

#include <memory>
#include <vector>

#include "ItemCursor.h"
#include "ItemQuery.h"
#include "Mailbox.h"

namespace tarnel::mailbox {

// A calendar with each occurrence as an item. It is expanded when a walk or a look by place begins, and again after a
// change; a walk that is under way goes on over what it began with.
class OccurrenceCursor : public ItemCursor {
 public:
  OccurrenceCursor(std::shared_ptr<Mailbox> mailbox, ItemQuery query)
      : mailbox_(std::move(mailbox)), query_(std::move(query)) {}

  std::int64_t count() override;
  std::optional<ItemRecord> at(std::int64_t index) override;
  std::optional<ItemRecord> first() override;
  std::optional<ItemRecord> next() override;

 private:
  void refresh();

  std::shared_ptr<Mailbox> mailbox_;
  ItemQuery query_;
  std::vector<ItemRecord> items_;
  std::size_t walked_ = 0;
  std::uint64_t generation_ = 0;
};

}  // namespace tarnel::mailbox
