#include "NamedProperties.h"

#include "MailboxFailures.h"
#include "Mapi.h"

namespace tarnel::mailbox {

std::int64_t nameIdOf(Store& store, std::string_view name) {
  if (const auto known = store.nameId(name)) return *known;
  std::int64_t id = 0;
  store.write([&] {
    store.prepare("INSERT INTO names(id, name) VALUES((SELECT ifnull(max(id) + 1, ?) FROM names), ?)")
        .bind(std::int64_t{outlook::mapi::firstNameId})
        .bind(name)
        .run();
    id = store.lastInsertId();
    if (id > outlook::mapi::lastNameId)
      failMailbox(store.path(), "it has no room for another property name", "Use a name that it knows already.");
  });
  return id;
}

std::vector<NamedProperty> readProperties(Store& store, std::int64_t item) {
  Statement rows = store.prepare(
      "SELECT n.name, p.value FROM userProperties p CROSS JOIN names n ON n.id = p.name WHERE p.item = ?");
  rows.bind(item);
  std::vector<NamedProperty> properties;
  while (rows.step()) properties.push_back({rows.text(0), rows.text(1)});
  return properties;
}

void writeProperty(Store& store, std::int64_t item, const NamedProperty& property) {
  const std::int64_t name = nameIdOf(store, property.name);
  store
      .prepare(
          "INSERT INTO userProperties(item, name, value) VALUES(?, ?, ?) "
          "ON CONFLICT(item, name) DO UPDATE SET value = excluded.value")
      .bind(item)
      .bind(name)
      .bind(property.value)
      .run();
}

}  // namespace tarnel::mailbox
