#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

#include "Store.h"
#include "Zone.h"

namespace tarnel::mailbox {

// The zones of a store's series.
class Zones {
 public:
  explicit Zones(Store& store) : store_(store) {}

  // None is the machine's own zone. A zone that can't be read any more counts as the machine's.
  const Zone& at(std::optional<std::int64_t> id);
  // Inside a transaction of the caller's. `definition` is the VTIMEZONE's text, empty for a zone of the tz database.
  std::int64_t idOf(const std::string& tzid, const std::string& definition);

 private:
  Store& store_;
  Zone machine_;
  std::unordered_map<std::int64_t, Zone> known_;
};

}  // namespace tarnel::mailbox
