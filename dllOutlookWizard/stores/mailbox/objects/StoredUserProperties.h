#pragma once

#include <memory>
#include <string>

#include "Item.h"
#include "ItemState.h"

namespace tarnel::mailbox {

// The user properties of an item in the store.
class StoredUserProperties : public outlook::UserProperties {
 public:
  explicit StoredUserProperties(std::shared_ptr<ItemState> state) : state_(std::move(state)) {}

  std::shared_ptr<outlook::UserProperty> Item(std::string_view name) override;
  std::shared_ptr<outlook::UserProperty> Add(std::string_view name, outlook::PropertyType type) override;

 private:
  std::shared_ptr<ItemState> state_;
};

}  // namespace tarnel::mailbox
