#include "FaultyOutlook.h"

#include "Faults.h"

namespace tarnel::test {
namespace {

using namespace outlook;

// Stands in front of one real object.
template <class Interface, class Pointer = std::shared_ptr<Interface>>
class Faulty : public Interface {
 public:
  explicit Faulty(Pointer real) : real_(std::move(real)) {}
  const Pointer& real() const { return real_; }

 private:
  Pointer real_;
  HeldObject held_;
};

// One line a call: its name, and what the real object does.
template <class Body>
auto call(const char* name, Body&& body) {
  return faults().call(name, std::forward<Body>(body));
}

// The stand-in of what the real object gave; nothing for nothing.
template <class StandIn, class Pointer>
std::shared_ptr<StandIn> inFrontOf(Pointer real) {
  return real ? std::make_shared<StandIn>(std::move(real)) : nullptr;
}

class FaultyProperty : public Faulty<UserProperty> {
 public:
  using Faulty::Faulty;
  Variant Value() const override {
    return call("outlook.Value", [&] { return real()->Value(); });
  }
  void setValue(const Variant& value) override {
    call("outlook.setValue", [&] { real()->setValue(value); });
  }
};

class FaultyProperties : public Faulty<UserProperties> {
 public:
  using Faulty::Faulty;
  std::shared_ptr<UserProperty> Item(std::string_view name) override {
    return inFrontOf<FaultyProperty>(call("outlook.UserProperties.Item", [&] { return real()->Item(name); }));
  }
  std::shared_ptr<UserProperty> Add(std::string_view name, PropertyType type) override {
    return inFrontOf<FaultyProperty>(call("outlook.UserProperties.Add", [&] { return real()->Add(name, type); }));
  }
};

#define READ(Type, name)                                           \
  Type name() const override {                                     \
    return call("outlook." #name, [&] { return real()->name(); }); \
  }
#define WRITE(name, Type)                                 \
  void name(Type value) override {                        \
    call("outlook." #name, [&] { real()->name(value); }); \
  }

template <class Kind>
class FaultyItem : public Faulty<Kind> {
 public:
  using Faulty<Kind>::Faulty;
  using Faulty<Kind>::real;
  READ(std::string, EntryID)
  READ(std::string, subject)
  READ(std::string, body)
  READ(Importance, importance)
  READ(std::string, ParentName)
  WRITE(setSubject, std::string_view)
  WRITE(setImportance, Importance)
  std::shared_ptr<outlook::UserProperties> UserProperties() override {
    return inFrontOf<FaultyProperties>(call("outlook.UserProperties", [&] { return real()->UserProperties(); }));
  }
  void Save() override {
    call("outlook.Save", [&] { real()->Save(); });
  }
  void Delete() override {
    call("outlook.Delete", [&] { real()->Delete(); });
  }
};

class FaultyTask : public FaultyItem<TaskItem> {
 public:
  using FaultyItem::FaultyItem;
  READ(TaskStatus, Status)
  READ(Date, dueDate)
  READ(std::int32_t, TotalWork)
  READ(std::int32_t, ActualWork)
  WRITE(setStatus, TaskStatus)
  WRITE(setDueDate, Date)
  WRITE(setTotalWork, std::int32_t)
  WRITE(setActualWork, std::int32_t)
};

class FaultyAppointment : public FaultyItem<AppointmentItem> {
 public:
  using FaultyItem::FaultyItem;
  READ(Date, Start)
  READ(Date, end)
  READ(std::int32_t, Duration)
  READ(std::string, Location)
  READ(bool, AllDayEvent)
  READ(bool, IsRecurring)
  READ(bool, ReminderSet)
  READ(std::int32_t, Sensitivity)
  WRITE(setStart, Date)
  WRITE(setEnd, Date)
  WRITE(setDuration, std::int32_t)
  WRITE(setLocation, std::string_view)
};

std::shared_ptr<Item> faultyItem(const std::shared_ptr<Item>& item) {
  if (auto task = std::dynamic_pointer_cast<TaskItem>(item)) return inFrontOf<FaultyTask>(std::move(task));
  return inFrontOf<FaultyAppointment>(std::dynamic_pointer_cast<AppointmentItem>(item));
}

class FaultyItems : public Faulty<Items> {
 public:
  using Faulty::Faulty;
  std::int32_t Count() override {
    return call("outlook.Count", [&] { return real()->Count(); });
  }
  std::shared_ptr<outlook::Item> Item(std::int32_t index) override {
    return faultyItem(call("outlook.Items.Item", [&] { return real()->Item(index); }));
  }
  std::shared_ptr<Items> Restrict(std::string_view filter) override {
    return inFrontOf<FaultyItems>(call("outlook.Restrict", [&] { return real()->Restrict(filter); }));
  }
  WRITE(Sort, std::string_view)
  WRITE(setIncludeRecurrences, bool)
  std::shared_ptr<outlook::Item> GetFirst() override {
    return faultyItem(call("outlook.GetFirst", [&] { return real()->GetFirst(); }));
  }
  std::shared_ptr<outlook::Item> GetNext() override {
    return faultyItem(call("outlook.GetNext", [&] { return real()->GetNext(); }));
  }
};

class FaultyFolder : public Faulty<Folder> {
 public:
  using Faulty::Faulty;
  READ(std::string, Name)
  READ(std::string, StoreID)
  std::shared_ptr<Items> items() override {
    return inFrontOf<FaultyItems>(call("outlook.items", [&] { return real()->items(); }));
  }
};

class FaultyNameSpace : public Faulty<NameSpace> {
 public:
  using Faulty::Faulty;
  void Logon(const std::optional<std::string>& profile, bool showDialog) override {
    call("outlook.Logon", [&] { real()->Logon(profile, showDialog); });
  }
  std::shared_ptr<Folder> GetDefaultFolder(DefaultFolder folder) override {
    return inFrontOf<FaultyFolder>(call("outlook.GetDefaultFolder", [&] { return real()->GetDefaultFolder(folder); }));
  }
  std::shared_ptr<Item> GetItemFromID(std::string_view entryId, std::string_view storeId) override {
    return faultyItem(call("outlook.GetItemFromID", [&] { return real()->GetItemFromID(entryId, storeId); }));
  }
};

class FaultyApplication : public Faulty<Application> {
 public:
  using Faulty::Faulty;
  std::shared_ptr<NameSpace> GetNamespace(std::string_view type) override {
    return inFrontOf<FaultyNameSpace>(call("outlook.GetNamespace", [&] { return real()->GetNamespace(type); }));
  }
  std::shared_ptr<NameSpace> Session() override {
    return inFrontOf<FaultyNameSpace>(call("outlook.Session", [&] { return real()->Session(); }));
  }
  std::shared_ptr<Item> CreateItem(ItemType type) override {
    return faultyItem(call("outlook.CreateItem", [&] { return real()->CreateItem(type); }));
  }
};

// The real wrapper works on the real item, and the wizard gets its own one back.
template <class Kind, class StandIn, class Interface = SafeItem<Kind>>
class FaultySafeItem : public Faulty<Interface, std::unique_ptr<Interface>> {
 public:
  using Faulty<Interface, std::unique_ptr<Interface>>::Faulty;
  using Faulty<Interface, std::unique_ptr<Interface>>::real;
  void setItem(std::shared_ptr<Kind> item) override {
    call("outlook.setItem", [&] { real()->setItem(item ? dynamic_cast<StandIn&>(*item).real() : nullptr); });
    item_ = std::move(item);
  }
  std::shared_ptr<Kind> Item() const override {
    return call("outlook.SafeItem.Item", [&] { return item_; });
  }
  std::string body() override {
    return call("outlook.SafeItem.body", [&] { return real()->body(); });
  }
  std::shared_ptr<outlook::UserProperties> UserProperties() override {
    return inFrontOf<FaultyProperties>(
        call("outlook.SafeItem.UserProperties", [&] { return real()->UserProperties(); }));
  }
  std::int32_t GetIDsFromNames(std::string_view set, std::string_view name) override {
    return call("outlook.GetIDsFromNames", [&] { return real()->GetIDsFromNames(set, name); });
  }

 private:
  std::shared_ptr<Kind> item_;
};

using FaultySafeTask = FaultySafeItem<TaskItem, FaultyTask>;

class FaultySafeAppointment : public FaultySafeItem<AppointmentItem, FaultyAppointment, SafeAppointmentItem> {
 public:
  using FaultySafeItem::FaultySafeItem;
  WRITE(setStart, Date)
  WRITE(setEnd, Date)
  WRITE(setLocation, std::string_view)
  WRITE(setDuration, std::int32_t)
};

// The conditions of a filter belong to it and are handed out by reference.
class FaultyRestriction : public Restriction {
 public:
  explicit FaultyRestriction(Restriction& real) : real_(&real) {}
  Restriction& Add(mapi::RestrictionKind kind) override {
    Restriction* added = call("outlook.Restriction.Add", [&] { return &real_->Add(kind); });
    return *parts_.emplace_back(std::make_unique<FaultyRestriction>(*added));
  }
  WRITE(setUlPropTag, std::int32_t)
  WRITE(setRelop, std::int32_t)
  void setLpProp(std::string value) override {
    call("outlook.setLpProp", [&] { real_->setLpProp(std::move(value)); });
  }

 private:
  Restriction* real() { return real_; }
  Restriction* real_;
  std::vector<std::unique_ptr<FaultyRestriction>> parts_;
};

class FaultyTable : public Faulty<MAPITable, std::unique_ptr<MAPITable>>, private TableFilter {
 public:
  using Faulty::Faulty;
  void setItem(std::shared_ptr<Items> items) override {
    call("outlook.MAPITable.setItem", [&] { real()->setItem(dynamic_cast<FaultyItems&>(*items).real()); });
  }
  WRITE(setColumns, std::vector<std::int32_t>)
  std::vector<Variant> GetRow() override {
    return call("outlook.GetRow", [&] { return real()->GetRow(); });
  }
  TableFilter& Filter() override {
    call("outlook.Filter", [&] { real()->Filter(); });
    return *this;
  }

 private:
  void Clear() override {
    call("outlook.Clear", [&] { real()->Filter().Clear(); });
  }
  Restriction& SetKind(mapi::RestrictionKind kind) override {
    Restriction* top = call("outlook.SetKind", [&] { return &real()->Filter().SetKind(kind); });
    restriction_ = std::make_unique<FaultyRestriction>(*top);
    return *restriction_;
  }
  void Restrict() override {
    call("outlook.Filter.Restrict", [&] { real()->Filter().Restrict(); });
  }
  bool FindFirst(bool forward) override {
    return call("outlook.FindFirst", [&] { return real()->Filter().FindFirst(forward); });
  }
  bool FindNext(bool forward) override {
    return call("outlook.FindNext", [&] { return real()->Filter().FindNext(forward); });
  }

  std::unique_ptr<FaultyRestriction> restriction_;
};

class FaultyUtils : public Faulty<MAPIUtils, std::unique_ptr<MAPIUtils>> {
 public:
  using Faulty::Faulty;
  std::string HrArrayToString(const Variant& value) override {
    return call("outlook.HrArrayToString", [&] { return real()->HrArrayToString(value); });
  }
  void Cleanup() override {
    call("outlook.Cleanup", [&] { real()->Cleanup(); });
  }
};

}  // namespace

std::shared_ptr<Application> FaultyOutlook::activeApplication() {
  return inFrontOf<FaultyApplication>(call("outlook.activeApplication", [&] { return real_.activeApplication(); }));
}
std::shared_ptr<Application> FaultyOutlook::createApplication() {
  return inFrontOf<FaultyApplication>(call("outlook.createApplication", [&] { return real_.createApplication(); }));
}
std::unique_ptr<SafeTaskItem> FaultyOutlook::createSafeTaskItem() {
  return std::make_unique<FaultySafeTask>(
      call("outlook.createSafeTaskItem", [&] { return real_.createSafeTaskItem(); }));
}
std::unique_ptr<SafeAppointmentItem> FaultyOutlook::createSafeAppointmentItem() {
  return std::make_unique<FaultySafeAppointment>(
      call("outlook.createSafeAppointmentItem", [&] { return real_.createSafeAppointmentItem(); }));
}
std::unique_ptr<MAPITable> FaultyOutlook::createMAPITable() {
  return std::make_unique<FaultyTable>(call("outlook.createMAPITable", [&] { return real_.createMAPITable(); }));
}
std::unique_ptr<MAPIUtils> FaultyOutlook::createMAPIUtils() {
  return std::make_unique<FaultyUtils>(call("outlook.createMAPIUtils", [&] { return real_.createMAPIUtils(); }));
}

}  // namespace tarnel::test
