#include "StoredUserProperties.h"

#include "Conversions.h"
#include "Failure.h"

namespace tarnel::mailbox {
namespace {

class StoredUserProperty : public outlook::UserProperty {
 public:
  StoredUserProperty(std::shared_ptr<ItemState> state, std::string_view name) : state_(std::move(state)), name_(name) {}

  Variant Value() const override { return state_->property(name_).value_or(std::string()); }
  void setValue(const Variant& value) override { state_->setProperty(name_, toText(value)); }

 private:
  std::shared_ptr<ItemState> state_;
  std::string name_;
};

}  // namespace

std::shared_ptr<outlook::UserProperty> StoredUserProperties::Item(std::string_view name) {
  if (!state_->property(name)) return nullptr;
  return std::make_shared<StoredUserProperty>(state_, name);
}

std::shared_ptr<outlook::UserProperty> StoredUserProperties::Add(std::string_view name, outlook::PropertyType type) {
  if (name.empty() || type != outlook::PropertyType::text)
    throw Failure(failure::automation, "A user property needs a name and is always a text.", "Outlook.UserProperties");
  if (!state_->property(name)) state_->setProperty(name, {});
  return std::make_shared<StoredUserProperty>(state_, name);
}

}  // namespace tarnel::mailbox
