#include "Zones.h"

namespace tarnel::mailbox {

const Zone& Zones::at(std::optional<std::int64_t> id) {
  if (!id) return machine_;
  if (const auto known = known_.find(*id); known != known_.end()) return known->second;
  Statement rows = store_.prepare("SELECT tzid, definition FROM zones WHERE id = ?");
  std::optional<Zone> zone;
  if (rows.bind(*id).step()) zone = Zone::of(rows.text(0), rows.text(1));
  return known_.emplace(*id, zone.value_or(Zone())).first->second;
}

std::int64_t Zones::idOf(const std::string& tzid, const std::string& definition) {
  store_.prepare("INSERT OR IGNORE INTO zones(tzid, definition) VALUES(?, ?)").bind(tzid).bind(definition).run();
  Statement rows = store_.prepare("SELECT id FROM zones WHERE tzid = ? AND definition = ?");
  rows.bind(tzid).bind(definition).step();
  return rows.number(0);
}

}  // namespace tarnel::mailbox
