#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Folder.h"
#include "Mapi.h"

namespace tarnel::outlook {

// Reads and writes what Outlook guards, past its guard.
template <class OutlookItem>
class SafeItem {
 public:
  virtual ~SafeItem() = default;
  virtual void setItem(std::shared_ptr<OutlookItem> item) = 0;
  // The wrapped item. Every operation below fails with 91 while there is none.
  virtual std::shared_ptr<OutlookItem> Item() const = 0;
  virtual std::string body() = 0;
  virtual std::shared_ptr<outlook::UserProperties> UserProperties() = 0;
  // Id of a named property in its high 16 bits, 0 in the low ones, where the property's type is joined in. Differs
  // between stores; a name that the store does not know yet gets an id.
  virtual std::int32_t GetIDsFromNames(std::string_view set, std::string_view name) = 0;
};

using SafeTaskItem = SafeItem<TaskItem>;

class SafeAppointmentItem : public SafeItem<AppointmentItem> {
 public:
  virtual void setStart(Date start) = 0;
  virtual void setEnd(Date end) = 0;
  virtual void setLocation(std::string_view location) = 0;
  virtual void setDuration(std::int32_t minutes) = 0;
};

// One node of a table's restriction: a conjunction of others, "has the property", or "the property equals".
class Restriction {
 public:
  virtual ~Restriction() = default;
  virtual Restriction& Add(mapi::RestrictionKind kind) = 0;  // on a conjunction
  virtual void setUlPropTag(std::int32_t tag) = 0;
  virtual void setRelop(std::int32_t relop) = 0;
  virtual void setLpProp(std::string value) = 0;
};

class TableFilter {
 public:
  virtual ~TableFilter() = default;
  virtual void Clear() = 0;
  virtual Restriction& SetKind(mapi::RestrictionKind kind) = 0;
  // Puts what was built into force; before that the filter finds nothing.
  virtual void Restrict() = 0;
  // Moves to the first or the next match, forwards. False when there is none.
  virtual bool FindFirst(bool forward) = 0;
  virtual bool FindNext(bool forward) = 0;
};

// A folder seen as a table of its items' MAPI properties.
class MAPITable {
 public:
  virtual ~MAPITable() = default;
  virtual void setItem(std::shared_ptr<Items> items) = 0;
  virtual void setColumns(std::vector<std::int32_t> tags) = 0;
  virtual TableFilter& Filter() = 0;
  // The row at the filter's position, a value a column; empty when there is none any more.
  virtual std::vector<Variant> GetRow() = 0;
};

class MAPIUtils {
 public:
  virtual ~MAPIUtils() = default;
  // Bytes as upper-case hexadecimal text, as NameSpace::GetItemFromID takes it. Failure 13 for anything but bytes.
  virtual std::string HrArrayToString(const Variant& value) = 0;
  // Lets go of all that the objects of this run hold on to.
  virtual void Cleanup() = 0;
};

}  // namespace tarnel::outlook
