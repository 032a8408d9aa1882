#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Date.h"
#include "Item.h"
#include "Mailbox.h"

namespace tarnel::mailbox {

// An item as `tarnel mailbox list` shows it; what its kind has not is none.
struct ListedItem {
  std::string entryId;
  std::string folder;
  outlook::ItemType kind = outlook::ItemType::task;
  std::string subject;
  std::string body;
  outlook::Importance importance = outlook::Importance::normal;
  std::optional<outlook::TaskStatus> status;
  std::optional<Date> dueDate;
  std::optional<std::int32_t> totalWork;   // minutes
  std::optional<std::int32_t> actualWork;  // minutes
  std::optional<Date> start;
  std::optional<Date> end;
  std::optional<std::string> location;
  std::optional<bool> allDay;
  std::optional<bool> recurring;
  std::vector<std::pair<std::string, std::string>> userProperties;
};

// All items of all folders in the order of their creation. A series is one item, and so is each of its exceptions.
std::vector<ListedItem> listItems(Mailbox& mailbox);

// To Deleted Items, or out of there for good; an occurrence is taken out of its series. Failure when the id leads
// nowhere.
void deleteItem(Mailbox& mailbox, std::string_view entryId);

// Into "Tasks", "Calendar" or "Deleted Items". Failure when the id leads nowhere, there is no such folder, the folder
// holds items of another kind, or the item is one occurrence of a series.
void moveItem(Mailbox& mailbox, std::string_view entryId, std::string_view folder);

}  // namespace tarnel::mailbox
