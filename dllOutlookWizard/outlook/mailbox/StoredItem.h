#pragma once

#include <memory>
#include <string>

#include "Failure.h"
#include "Item.h"
#include "ItemState.h"
#include "StoredUserProperties.h"

namespace tarnel::mailbox {

// What all our items can be asked for, whatever they are.
class StateOwner {
 public:
  virtual ~StateOwner() = default;
  virtual const std::shared_ptr<ItemState>& state() const = 0;
};

// What tasks and appointments have in common.
template <class Interface>
class StoredItem : public Interface, public StateOwner {
 public:
  explicit StoredItem(std::shared_ptr<ItemState> state) : state_(std::move(state)) {}

  const std::shared_ptr<ItemState>& state() const override { return state_; }

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
  void Save() override { state_->save(); }
  void Delete() override { state_->erase(); }

 protected:
  const ItemRecord& record() const { return state_->record(); }
  ItemRecord& change() { return state_->change(); }

 private:
  std::shared_ptr<ItemState> state_;
};

// The object for a row, by its kind.
std::shared_ptr<outlook::Item> makeItem(std::shared_ptr<Mailbox> mailbox, ItemRecord record);
// An unsaved item. An appointment starts at the next half hour and lasts 30 minutes.
std::shared_ptr<outlook::Item> makeNewItem(std::shared_ptr<Mailbox> mailbox, outlook::ItemType type);

}  // namespace tarnel::mailbox
