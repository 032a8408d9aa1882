#include "StoredItems.h"

#include "Failure.h"
#include "OccurrenceCursor.h"
#include "PagedCursor.h"
#include "PropertySearch.h"
#include "makeItem.h"

namespace tarnel::mailbox {

StoredItems::StoredItems(std::shared_ptr<Mailbox> mailbox, ItemQuery query)
    : mailbox_(std::move(mailbox)), query_(std::move(query)) {}

std::int32_t StoredItems::Count() { return static_cast<std::int32_t>(cursor().count()); }

std::shared_ptr<outlook::Item> StoredItems::Item(std::int32_t index) {
  auto item = cursor().at(std::int64_t{index} - 1);
  if (!item)
    throw Failure(failure::automation, "Array index out of bounds: there is no item " + std::to_string(index) + ".",
                  "Outlook.Items");
  return object(std::move(item));
}

std::shared_ptr<outlook::Items> StoredItems::Restrict(std::string_view filter) {
  ItemQuery narrower = query_;
  narrower.restrict(filter, mailbox_->store, mailbox_->locale);
  return std::make_shared<StoredItems>(mailbox_, std::move(narrower));
}

void StoredItems::Sort(std::string_view property) {
  query_.sort = sortColumn(property);
  cursor_.reset();
}

void StoredItems::setIncludeRecurrences(bool include) {
  query_.includeRecurrences = include;
  cursor_.reset();
}

std::shared_ptr<outlook::Item> StoredItems::GetFirst() { return object(cursor().first()); }

std::shared_ptr<outlook::Item> StoredItems::GetNext() { return object(cursor().next()); }

std::vector<std::int64_t> StoredItems::find(const std::vector<outlook::mapi::PropertyCondition>& conditions) {
  return itemsWithProperties(*mailbox_, query_.folder, conditions);
}

std::optional<outlook::mapi::Row> StoredItems::row(std::int64_t number) {
  const auto rowOf = [this](const ItemRecord& item) {
    return outlook::mapi::Row{entryIdOf(mailbox_->store, item).bytes(), item.subject};
  };
  if (const ItemRecord* found = mailbox_->found.get(mailbox_->store, number)) return rowOf(*found);
  const auto item = findItem(mailbox_->store, number);
  if (!item || item->folder != query_.folder) return {};
  return rowOf(*item);
}

ItemCursor& StoredItems::cursor() {
  if (!cursor_ && query_.includeRecurrences) cursor_ = std::make_unique<OccurrenceCursor>(mailbox_, query_);
  if (!cursor_) cursor_ = std::make_unique<PagedCursor>(mailbox_, query_);
  return *cursor_;
}

std::shared_ptr<outlook::Item> StoredItems::object(std::optional<ItemRecord> item) const {
  if (!item) return nullptr;
  return makeItem(mailbox_, std::move(*item));
}

}  // namespace tarnel::mailbox
