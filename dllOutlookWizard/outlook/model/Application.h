#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Folder.h"

namespace tarnel::outlook {

// Outlook's own numbers (OlDefaultFolders).
enum class DefaultFolder : std::int32_t { deletedItems = 3, calendar = 9, tasks = 13 };

// A logged-on session on one mailbox.
class NameSpace {
 public:
  virtual ~NameSpace() = default;

  // Without a profile: on the profile of the running Outlook, else on the default one. Failure when the profile is not
  // known or its mailbox is out of reach. `showDialog` is false in every call.
  virtual void Logon(const std::optional<std::string>& profile = {}, bool showDialog = false) = 0;
  // Failure before Logon, here and below.
  virtual std::shared_ptr<Folder> GetDefaultFolder(DefaultFolder folder) = 0;
  // The item in whatever folder it is. Failure when the id leads nowhere or the store is another one.
  virtual std::shared_ptr<Item> GetItemFromID(std::string_view entryId, std::string_view storeId) = 0;
};

class Application {
 public:
  virtual ~Application() = default;

  // "MAPI" is the one type there is; failure 5 for any other.
  virtual std::shared_ptr<NameSpace> GetNamespace(std::string_view type) = 0;
  // The namespace that GetNamespace gave.
  virtual std::shared_ptr<NameSpace> Session() = 0;
  // An unsaved item: a TaskItem for ItemType::task, an AppointmentItem for ItemType::appointment. Its first Save puts
  // it into the default folder of its kind.
  virtual std::shared_ptr<Item> CreateItem(ItemType type) = 0;
};

}  // namespace tarnel::outlook
