#include "ItemState.h"

#include <algorithm>

#include "Conversions.h"
#include "Failure.h"

namespace tarnel::mailbox {

ItemState::ItemState(std::shared_ptr<Mailbox> mailbox, ItemRecord record)
    : mailbox_(std::move(mailbox)), record_(std::move(record)) {}

ItemRecord& ItemState::change() {
  if (erased_) failGone("changed");
  if (!before_) before_ = record_;
  return record_;
}

std::string ItemState::entryId() const {
  if (isNew()) return {};
  return entryIdOf(mailbox_->store, record_).text();
}

std::string ItemState::folderName() const { return mailbox_->store.folders().at(record_.folder); }

const std::string& ItemState::body() {
  if (!record_.body) {
    ItemRecord source;
    source.id = sourceId();
    readTexts(mailbox_->store, source);
    record_.body = source.body;
    if (before_) before_->body = source.body;
  }
  return *record_.body;
}

std::vector<ItemState::Property>& ItemState::properties() {
  if (!properties_) {
    properties_.emplace();
    if (sourceId() != 0)
      for (NamedProperty& property : readProperties(mailbox_->store, sourceId()))
        properties_->push_back({std::move(property), false});
  }
  return *properties_;
}

std::optional<std::string> ItemState::property(std::string_view name) {
  for (const Property& each : properties())
    if (equalsIgnoringCase(each.property.name, name)) return each.property.value;
  return {};
}

void ItemState::setProperty(std::string_view name, std::string value) {
  change();
  auto& all = properties();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&](const Property& each) { return equalsIgnoringCase(each.property.name, name); });
  if (found == all.end())
    all.push_back({{std::string(name), std::move(value)}, true});
  else if (found->property.value != value)
    *found = {{found->property.name, std::move(value)}, true};
}

bool ItemState::hasChanges() const {
  // Each setter goes through change(), also that of a property.
  if (!before_) return false;
  return record_ != *before_ || (properties_ && std::ranges::any_of(*properties_, &Property::changed));
}

void ItemState::save() {
  if (erased_) failGone("saved");
  // What holds what was set already stays as it is, its time of modification, too.
  if (!isNew() && !hasChanges()) return requirePresence();
  ItemRecord next = record_;
  mailbox_->store.write([&] { write(next); });
  record_ = std::move(next);
  before_.reset();
  if (properties_)
    for (Property& each : *properties_) each.changed = false;
}

void ItemState::requirePresence() const {
  if (isBareOccurrence()) return;
  Store& store = mailbox_->store;
  store.requireReach();
  if (!mailbox_->found.get(store, record_.id) && !isStored(store, record_.id)) failGone("saved");
}

void ItemState::write(ItemRecord& next) {
  Store& store = mailbox_->store;
  next.modified = wallSecondsOf(mailbox_->clock.now());
  if (isBareOccurrence()) {
    properties();  // the series', which the exception takes over
    writeOccurrence(next);
  } else if (next.id == 0) {
    next.created = next.modified;
    insertItem(store, next);
  } else if (!updateItem(store, before_ ? *before_ : record_, next)) {
    failGone("saved");
  }
  if (!properties_) return;
  for (const Property& each : *properties_)
    if (each.changed || record_.id == 0) writeProperty(store, next.id, each.property);
}

void ItemState::writeOccurrence(ItemRecord& next) {
  Store& store = mailbox_->store;
  auto series = findItem(store, *record_.series);
  if (!series || isErasedOccurrence(store, *record_.series, *record_.original)) failGone("saved");
  next.folder = series->folder;
  // Someone else may have made the exception since this occurrence was read.
  if (const auto exception = findException(store, *record_.series, *record_.original)) {
    next.id = exception->id;
    if (!updateItem(store, *before_, next)) failGone("saved");
    return;
  }
  readTexts(store, *series);
  if (!next.body) next.body = series->body;
  next.extras = series->extras;
  next.created = next.modified;
  insertItem(store, next);
}

void ItemState::erase() {
  if (erased_ || isNew()) failGone("deleted");
  Store& store = mailbox_->store;
  std::int64_t folder = folderId::deletedItems;
  store.write([&] {
    const auto stored = findItem(store, sourceId());
    if (!stored) failGone("deleted");
    if (record_.series) return eraseOccurrence(store, *record_.series, *record_.original);
    const bool isDone = stored->folder == folderId::deletedItems ? eraseItemRow(store, record_.id)
                                                                 : moveItemRow(store, record_.id, folder);
    if (!isDone) failGone("deleted");
  });
  record_.folder = folder;
  erased_ = true;
}

void ItemState::failGone(const char* operation) const {
  throw Failure(failure::automation,
                "The item \"" + record_.subject + "\" can't be " + operation + ": it " +
                    (isNew() ? "was never saved." : "was moved or deleted. Read the folder again."),
                "Outlook.Item");
}

}  // namespace tarnel::mailbox
