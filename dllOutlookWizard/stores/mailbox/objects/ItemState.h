#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ItemRecord.h"
#include "Mailbox.h"
#include "NamedProperties.h"

namespace tarnel::mailbox {

// What an item's objects share (the item, its properties, Redemption's wrappers): the row as it was read, what was set
// since, and the way into the store and out of it.
class ItemState {
 public:
  // A record without an id is new, or an occurrence that no exception has replaced yet.
  ItemState(std::shared_ptr<Mailbox> mailbox, ItemRecord record);

  Mailbox& mailbox() const { return *mailbox_; }
  const ItemRecord& record() const { return record_; }
  // For setters. Failure when the item was deleted through this object.
  ItemRecord& change();

  // Empty before the first save.
  std::string entryId() const;
  std::string folderName() const;
  const std::string& body();

  // None when the item has no such property.
  std::optional<std::string> property(std::string_view name);
  void setProperty(std::string_view name, std::string value);

  // One transaction; when it fails, the object keeps what was set and may be saved again.
  void save();
  void erase();

 private:
  struct Property {
    NamedProperty property;
    bool changed = false;
  };

  bool isNew() const { return record_.id == 0 && !record_.series; }
  bool isBareOccurrence() const { return record_.id == 0 && record_.series.has_value(); }
  // The row that has the texts and properties that were not set through this object; 0 for a new item.
  std::int64_t sourceId() const { return isBareOccurrence() ? *record_.series : record_.id; }
  std::vector<Property>& properties();
  bool hasChanges() const;
  void requirePresence() const;
  void write(ItemRecord& next);
  void writeOccurrence(ItemRecord& next);
  [[noreturn]] void failGone(const char* operation) const;

  std::shared_ptr<Mailbox> mailbox_;
  ItemRecord record_;
  std::optional<ItemRecord> before_;  // as read, from the first change on
  std::optional<std::vector<Property>> properties_;
  bool erased_ = false;
};

}  // namespace tarnel::mailbox
