#pragma once

#include <filesystem>
#include <memory>

#include "Clock.h"
#include "ItemRows.h"
#include "Locale.h"
#include "Store.h"
#include "Zones.h"

namespace tarnel::mailbox {

// The item that a search read last. Whoever fetches an item has mostly searched for it just before, and then it isn't
// read again, unless this connection has changed something since.
class FoundItem {
 public:
  void keep(const Store& store, ItemRecord item) {
    item_ = std::move(item);
    generation_ = store.generation();
  }
  // None when it is another one or may be stale.
  const ItemRecord* get(const Store& store, std::int64_t id) const {
    return item_ && item_->id == id && generation_ == store.generation() ? &*item_ : nullptr;
  }

 private:
  std::optional<ItemRecord> item_;
  std::uint64_t generation_ = 0;
};

// An open mailbox with what its items need of the world around: how dates are written in filters, and the time.
struct Mailbox {
  Store store;
  Zones zones;
  Locale locale;
  // Must outlive the mailbox and its items.
  const Clock& clock;
  FoundItem found = {};

  // Failure when the mailbox is out of reach.
  Mailbox(const std::filesystem::path& path, Locale dates, const Clock& time)
      : store(path), zones(store), locale(std::move(dates)), clock(time) {}

  const std::filesystem::path& path() const { return store.path(); }
  bool isInReach() const { return store.isInReach(); }
  bool rest() { return store.rest(); }
  bool wake() { return store.wake(); }
};

}  // namespace tarnel::mailbox
