#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "Date.h"
#include "Mapi.h"
#include "Variant.h"

namespace tarnel::outlook {

// Outlook's own numbers (OlItemType, OlTaskStatus, OlImportance, OlUserPropertyType).
enum class ItemType : std::int32_t { appointment = 1, task = 3 };
enum class TaskStatus : std::int32_t { notStarted = 0, inProgress = 1, complete = 2, waiting = 3 };
enum class Importance : std::int32_t { low = 0, normal = 1, high = 2 };
enum class PropertyType : std::int32_t { text = 1 };

// A named value that a user or a program added to an item.
class UserProperty {
 public:
  virtual ~UserProperty() = default;
  virtual Variant Value() const = 0;
  // In the store after the item's next Save.
  virtual void setValue(const Variant& value) = 0;
};

class UserProperties {
 public:
  virtual ~UserProperties() = default;
  // Names are compared without regard to case. Nothing when the item has no such property.
  virtual std::shared_ptr<UserProperty> Item(std::string_view name) = 0;
  // The property of that name, made if need be.
  virtual std::shared_ptr<UserProperty> Add(std::string_view name, PropertyType type) = 0;
};

// An item of a folder, or one that was created and not yet saved. It holds what it read of the store; writes go to the
// item and are in the store once Save returns, which leaves an item alone that holds all that already. Whatever goes to
// the store fails when the store is out of reach (its file removed, replaced, locked or write-protected) or the item is
// gone from it: Save and Delete, and reads of what was not read yet. After Delete an item can be read and no more than
// that.
class Item {
 public:
  virtual ~Item() = default;

  // Upper-case hexadecimal text; empty before the first Save. Stays the same when the item is moved.
  virtual std::string EntryID() const = 0;
  virtual std::string subject() const = 0;
  virtual void setSubject(std::string_view subject) = 0;
  virtual std::string body() const = 0;
  virtual Importance importance() const = 0;
  virtual void setImportance(Importance importance) = 0;
  virtual std::shared_ptr<outlook::UserProperties> UserProperties() = 0;
  // Name of the folder that it is in: "Tasks", "Calendar", "Deleted Items".
  virtual std::string ParentName() const = 0;
  // Belongs to the item.
  virtual mapi::Message& MAPIOBJECT() = 0;

  // One transaction: all that was set, or nothing. What was not set keeps what others wrote meanwhile.
  virtual void Save() = 0;
  // Moves the item to Deleted Items, a series with its exceptions; out of there it goes for good. An occurrence is
  // taken out of its series and is in no folder then. Failure for an item that was never saved.
  virtual void Delete() = 0;
};

class TaskItem : public Item {
 public:
  virtual TaskStatus Status() const = 0;
  // Keeps completion in step: complete means 100 percent and a completion date, anything else means neither.
  virtual void setStatus(TaskStatus status) = 0;
  // None is 4501-01-01, as Outlook gives it.
  virtual Date dueDate() const = 0;
  // Failure for a day before 1899-12-30 or beyond 4501-01-01; the time of day is dropped.
  virtual void setDueDate(Date date) = 0;
  // Minutes, any number of 32 bits.
  virtual std::int32_t TotalWork() const = 0;
  virtual void setTotalWork(std::int32_t minutes) = 0;
  virtual std::int32_t ActualWork() const = 0;
  virtual void setActualWork(std::int32_t minutes) = 0;
};

// A single appointment, a series, which has the times of its first occurrence, or one occurrence of a series, which
// has an entry id of its own. Saving an occurrence with changes makes it an exception of its series. The times of a
// series as a whole can't be set: failure 440.
class AppointmentItem : public Item {
 public:
  virtual Date Start() const = 0;
  virtual Date end() const = 0;
  // Minutes from Start to end. Setting Start keeps the duration, setting end or Duration changes the other one;
  // an end before its start is failure 13.
  virtual std::int32_t Duration() const = 0;
  virtual void setStart(Date start) = 0;
  virtual void setEnd(Date end) = 0;
  virtual void setDuration(std::int32_t minutes) = 0;
  virtual std::string Location() const = 0;
  virtual void setLocation(std::string_view location) = 0;
  virtual bool AllDayEvent() const = 0;
  virtual bool IsRecurring() const = 0;
  virtual bool ReminderSet() const = 0;
  virtual std::int32_t Sensitivity() const = 0;
};

// The item as what it must be. Failure 438 when it is of the other kind, 91 when there is none.
std::shared_ptr<TaskItem> asTask(const std::shared_ptr<Item>& item);
std::shared_ptr<AppointmentItem> asAppointment(const std::shared_ptr<Item>& item);

}  // namespace tarnel::outlook
