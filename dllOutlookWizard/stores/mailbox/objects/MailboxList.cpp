#include "MailboxList.h"

#include "Conversions.h"
#include "Failure.h"
#include "ItemColumns.h"
#include "ItemLookup.h"
#include "ItemState.h"

namespace tarnel::mailbox {
namespace {

std::optional<Date> dateOrNone(WallSeconds seconds) {
  if (seconds == noDate) return {};
  return dateOf(seconds);
}

ListedItem listed(Mailbox& mailbox, const ItemRecord& item) {
  ListedItem shown;
  shown.entryId = entryIdOf(mailbox.store, item).text();
  shown.kind = item.kind;
  shown.subject = item.subject;
  shown.importance = static_cast<outlook::Importance>(item.importance);
  if (item.kind == outlook::ItemType::task) {
    shown.status = item.status;
    shown.dueDate = dateOrNone(item.dueDate);
    shown.totalWork = static_cast<std::int32_t>(item.totalWork);
    shown.actualWork = static_cast<std::int32_t>(item.actualWork);
  } else {
    shown.start = dateOf(item.start);
    shown.end = dateOf(item.end);
    shown.location = item.location;
    shown.allDay = item.allDay;
    shown.recurring = item.isRecurring();
  }
  for (const NamedProperty& property : readProperties(mailbox.store, item.id))
    shown.userProperties.emplace_back(property.name, property.value);
  return shown;
}

std::int64_t folderNamed(const Store& store, std::string_view name) {
  for (const auto& [id, known] : store.folders())
    if (equalsIgnoringCase(known, name)) return id;
  throw Failure(failure::automation,
                "There is no folder \"" + std::string(name) + "\". There are Tasks, Calendar and Deleted Items.",
                "Tarnel.Mailbox");
}

}  // namespace

std::vector<ListedItem> listItems(Mailbox& mailbox) {
  mailbox.store.requireReach();
  std::vector<ListedItem> items;
  mailbox.store.read([&] {
    Statement rows = mailbox.store.prepare(
        "SELECT " + itemSelection() + ", f.name, i.body FROM items i JOIN folders f ON f.id = i.folder ORDER BY i.id");
    while (rows.step()) {
      ListedItem item = listed(mailbox, readItem(rows));
      item.folder = rows.text(itemSelectionSize);
      item.body = rows.text(itemSelectionSize + 1);
      items.push_back(std::move(item));
    }
  });
  return items;
}

void deleteItem(Mailbox& mailbox, std::string_view entryId) {
  // Not owned: the state lives no longer than this call.
  const std::shared_ptr<Mailbox> unowned(std::shared_ptr<void>(), &mailbox);
  ItemState(unowned, itemOfEntryId(mailbox, entryId)).erase();
}

void moveItem(Mailbox& mailbox, std::string_view entryId, std::string_view folder) {
  const ItemRecord item = itemOfEntryId(mailbox, entryId);
  const std::int64_t target = folderNamed(mailbox.store, folder);
  const std::int64_t home = item.kind == outlook::ItemType::task ? folderId::tasks : folderId::calendar;
  const auto fail = [&](const std::string& problem) {
    throw Failure(failure::automation,
                  "The item \"" + item.subject + "\" can't be moved to \"" + std::string(folder) + "\": " + problem,
                  "Tarnel.Mailbox");
  };
  if (item.series) fail("it is one occurrence of a series. Move the series, or delete the occurrence.");
  if (target != home && target != folderId::deletedItems) fail("that folder holds items of another kind.");
  mailbox.store.write([&] {
    if (!moveItemRow(mailbox.store, item.id, target)) fail("it was deleted meanwhile. List the mailbox again.");
  });
}

}  // namespace tarnel::mailbox
