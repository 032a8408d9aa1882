#include "makeItem.h"

#include "StoredAppointment.h"
#include "StoredTask.h"

namespace tarnel::mailbox {

std::shared_ptr<outlook::Item> makeItem(std::shared_ptr<Mailbox> mailbox, ItemRecord record) {
  const outlook::ItemType kind = record.kind;
  auto state = std::make_shared<ItemState>(std::move(mailbox), std::move(record));
  if (kind == outlook::ItemType::task) return std::make_shared<StoredTask>(std::move(state));
  return std::make_shared<StoredAppointment>(std::move(state));
}

std::shared_ptr<outlook::Item> makeNewItem(std::shared_ptr<Mailbox> mailbox, outlook::ItemType type) {
  constexpr WallSeconds halfHour = 1800;
  ItemRecord record;
  record.kind = type;
  // Nothing to read where nothing was written yet.
  record.body.emplace();
  record.extras.emplace();
  if (type == outlook::ItemType::appointment) {
    record.folder = folderId::calendar;
    record.start = (wallSecondsOf(mailbox->clock.now()) / halfHour + 1) * halfHour;
    record.end = record.start + halfHour;
  }
  return makeItem(std::move(mailbox), std::move(record));
}

}  // namespace tarnel::mailbox
