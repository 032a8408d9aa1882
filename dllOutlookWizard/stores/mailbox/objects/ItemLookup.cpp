#include "ItemLookup.h"

#include "Conversions.h"
#include "Failure.h"
#include "Occurrences.h"
#include "StoredFolder.h"

namespace tarnel::mailbox {
namespace {

[[noreturn]] void failLookup(std::string_view entryId, const std::string& problem) {
  throw Failure(failure::automation, "The item \"" + std::string(entryId) + "\" can't be found: " + problem + ".",
                "Outlook.NameSpace");
}

std::optional<ItemRecord> findOccurrence(Mailbox& mailbox, std::int64_t seriesId, WallSeconds original) {
  if (auto exception = findException(mailbox.store, seriesId, original)) return exception;
  const auto series = findItem(mailbox.store, seriesId);
  if (!series) return {};
  return occurrenceAt(mailbox, *series, original);
}

std::optional<ItemRecord> find(Mailbox& mailbox, const EntryId& id) {
  if (id.original) return findOccurrence(mailbox, id.item, *id.original);
  if (const ItemRecord* found = mailbox.found.get(mailbox.store, id.item)) return *found;
  return findItem(mailbox.store, id.item);
}

}  // namespace

ItemRecord itemOfEntryId(Mailbox& mailbox, std::string_view entryId, std::string_view storeId) {
  mailbox.store.requireReach();
  const auto id = EntryId::parse(entryId);
  if (!id) failLookup(entryId, "this is no entry id");
  if (id->storeId != mailbox.store.id() ||
      (!storeId.empty() && !equalsIgnoringCase(storeId, storeIdText(mailbox.store))))
    failLookup(entryId, "it belongs to another mailbox");
  auto item = find(mailbox, *id);
  if (!item) failLookup(entryId, "it was deleted. Read the folder again");
  return std::move(*item);
}

}  // namespace tarnel::mailbox
