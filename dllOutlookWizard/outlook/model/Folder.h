#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "Item.h"

namespace tarnel::outlook {

// A folder's items, or those of them that a restriction leaves. Reads no more of the store than it is asked for.
class Items {
 public:
  virtual ~Items() = default;

  virtual std::int32_t Count() = 0;
  // From 1. Failure 440 (array index out of bounds) beyond Count.
  virtual std::shared_ptr<outlook::Item> Item(std::int32_t index) = 0;
  // A new collection of the items that match, in Outlook's filter language: "[Complete] = false",
  // "[Start] <= \"11/19/2026 11:59 PM\" AND NOT ([Location] = 'Tarnel')". Dates are in the system's short date format,
  // optionally with a time. Texts compare without regard to case; user properties of the store can be named too.
  // Failure 440 for a filter that can't be read or an unknown property.
  virtual std::shared_ptr<Items> Restrict(std::string_view filter) = 0;
  // "[Start]", ascending; failure 440 for an unknown property. Without it items come in the order of their creation.
  virtual void Sort(std::string_view property) = 0;
  // True: each occurrence of a series counts as an item of its own. Asks for a sort by [Start] first and for a
  // restriction in time after it: series are expanded within what the restrictions leave of [Start] and [End], and a
  // side that they leave open ends a year from today, or from the other side where that is further off.
  virtual void setIncludeRecurrences(bool include) = 0;
  // Walks the collection; nothing at its end.
  virtual std::shared_ptr<outlook::Item> GetFirst() = 0;
  virtual std::shared_ptr<outlook::Item> GetNext() = 0;
  // Belongs to the collection.
  virtual mapi::Contents& MAPIOBJECT() = 0;
};

class Folder {
 public:
  virtual ~Folder() = default;
  virtual std::string Name() const = 0;
  virtual std::shared_ptr<Items> items() = 0;
  virtual std::string StoreID() const = 0;
};

}  // namespace tarnel::outlook
