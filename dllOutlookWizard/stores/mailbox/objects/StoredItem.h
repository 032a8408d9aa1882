#pragma once

#include <memory>
#include <string>

#include "Failure.h"
#include "Item.h"
#include "ItemState.h"
#include "StoredUserProperties.h"

namespace tarnel::mailbox {

// What tasks and appointments have in common.
template <class Interface>
class StoredItem : public Interface, private outlook::mapi::Message {
 public:
  explicit StoredItem(std::shared_ptr<ItemState> state) : state_(std::move(state)) {}

  std::string EntryID() const override { return state_->entryId(); }
  std::string subject() const override { return record().subject; }
  void setSubject(std::string_view subject) override { change().subject = subject; }
  std::string body() const override { return state_->body(); }
  outlook::Importance importance() const override { return static_cast<outlook::Importance>(record().importance); }
  void setImportance(outlook::Importance importance) override {
    if (importance < outlook::Importance::low || importance > outlook::Importance::high)
      throw Failure(failure::automation, "Importance can't be set: it is low, normal or high.", "Outlook.Item");
    change().importance = static_cast<std::int64_t>(importance);
  }
  std::shared_ptr<outlook::UserProperties> UserProperties() override {
    return std::make_shared<StoredUserProperties>(state_);
  }
  std::string ParentName() const override { return state_->folderName(); }
  outlook::mapi::Message& MAPIOBJECT() override { return *this; }
  void Save() override { state_->save(); }
  void Delete() override { state_->erase(); }

 protected:
  Mailbox& mailbox() const { return state_->mailbox(); }
  const ItemRecord& record() const { return state_->record(); }
  ItemRecord& change() { return state_->change(); }

 private:
  std::int32_t idOfName(std::string_view name) override {
    return static_cast<std::int32_t>(nameIdOf(mailbox().store, name));
  }

  std::shared_ptr<ItemState> state_;
};

}  // namespace tarnel::mailbox
