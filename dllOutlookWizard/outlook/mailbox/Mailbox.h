#pragma once

#include <filesystem>
#include <memory>

#include "Clock.h"
#include "Locale.h"
#include "Store.h"
#include "Zone.h"

namespace tarnel::mailbox {

// An open mailbox with what its items need of the world around: how dates are written in filters, and the time.
struct Mailbox {
  Store store;
  Zones zones;
  Locale locale;
  // Must outlive the mailbox and its items.
  const Clock& clock;

  // Failure when the mailbox is out of reach.
  Mailbox(const std::filesystem::path& path, Locale dates, const Clock& time)
      : store(path), zones(store), locale(std::move(dates)), clock(time) {}

  const std::filesystem::path& path() const { return store.path(); }
  bool isInReach() const { return store.isInReach(); }
  bool rest() { return store.rest(); }
  bool wake() { return store.wake(); }
};

}  // namespace tarnel::mailbox
