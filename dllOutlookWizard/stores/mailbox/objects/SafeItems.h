#pragma once

#include <memory>
#include <string>

#include "Failure.h"
#include "Redemption.h"

namespace tarnel::mailbox {

// The id of a named property of the public set as the high 16 bits of a property tag. Failure 440 for another set.
std::int32_t propertyTag(outlook::mapi::Message& item, std::string_view set, std::string_view name);

// Our items are guarded by nothing, so a wrapper passes on what it is asked.
template <class Interface, class OutlookItem>
class SafeStoredItem : public Interface {
 public:
  void setItem(std::shared_ptr<OutlookItem> item) override { item_ = std::move(item); }
  std::shared_ptr<OutlookItem> Item() const override { return item_; }
  std::string body() override { return wrapped().body(); }
  std::shared_ptr<outlook::UserProperties> UserProperties() override { return wrapped().UserProperties(); }
  std::int32_t GetIDsFromNames(std::string_view set, std::string_view name) override {
    return propertyTag(wrapped().MAPIOBJECT(), set, name);
  }

 protected:
  OutlookItem& wrapped() const {
    if (!item_) failObjectNotSet();
    return *item_;
  }

 private:
  std::shared_ptr<OutlookItem> item_;
};

using SafeStoredTask = SafeStoredItem<outlook::SafeTaskItem, outlook::TaskItem>;

class SafeStoredAppointment : public SafeStoredItem<outlook::SafeAppointmentItem, outlook::AppointmentItem> {
 public:
  void setStart(Date start) override { wrapped().setStart(start); }
  void setEnd(Date end) override { wrapped().setEnd(end); }
  void setLocation(std::string_view location) override { wrapped().setLocation(location); }
  void setDuration(std::int32_t minutes) override { wrapped().setDuration(minutes); }
};

}  // namespace tarnel::mailbox
