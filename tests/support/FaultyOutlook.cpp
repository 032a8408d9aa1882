#include "FaultyOutlook.h"

#include "Faults.h"

namespace tarnel::test {
namespace {

using namespace outlook;

// Placed in front of one real object.
template <class Interface, class Pointer = std::shared_ptr<Interface>>
class Faulty : public Interface {
 public:
  explicit Faulty(Pointer real) : real_(std::move(real)) {}
  const Pointer& real() const { return real_; }

 private:
  Pointer real_;
  HeldObject held_;
};

template <class Body>
auto call(const char* name, Body&& body) {
  return faults().call(name, std::forward<Body>(body));
}

// The double of what the real object gave; nothing for nothing.
template <class StandIn, class Pointer>
std::shared_ptr<StandIn> inFrontOf(Pointer real) {
  return real ? std::make_shared<StandIn>(std::move(real)) : nullptr;
}

// A call that goes through under its name or another one, and one that gives an object, which gets a double.
#define CALL_AS(label, Result, name, parameters, arguments)                            \
  Result name parameters override {                                                    \
    return call("outlook." label, [&]() -> Result { return real()->name arguments; }); \
  }
#define CALL(Result, name, parameters, arguments) CALL_AS(#name, Result, name, parameters, arguments)
#define GIVE_AS(label, Kind, standIn, name, parameters, arguments)                  \
  std::shared_ptr<Kind> name parameters override {                                  \
    return standIn(call("outlook." label, [&] { return real()->name arguments; })); \
  }
#define GIVE(Kind, standIn, name, parameters, arguments) GIVE_AS(#name, Kind, standIn, name, parameters, arguments)
#define READ(Type, name) CALL(Type, name, () const, ())
#define WRITE(name, Type) CALL(void, name, (Type value), (value))

struct FaultyProperty : Faulty<UserProperty> {
  using Faulty::Faulty;
  READ(Variant, Value)
  WRITE(setValue, const Variant&)
};

struct FaultyProperties : Faulty<UserProperties> {
  using Faulty::Faulty;
  GIVE_AS("UserProperties.Item", UserProperty, inFrontOf<FaultyProperty>, Item, (std::string_view name), (name))
  GIVE_AS("UserProperties.Add", UserProperty, inFrontOf<FaultyProperty>, Add,
          (std::string_view name, PropertyType type), (name, type))
};

template <class Kind>
struct FaultyItem : Faulty<Kind> {
  using Faulty<Kind>::Faulty;
  using Faulty<Kind>::real;
  READ(std::string, EntryID)
  READ(std::string, subject)
  READ(std::string, body)
  READ(Importance, importance)
  READ(std::string, ParentName)
  WRITE(setSubject, std::string_view)
  WRITE(setImportance, Importance)
  GIVE(outlook::UserProperties, inFrontOf<FaultyProperties>, UserProperties, (), ())
  // Redemption's objects alone ask for it.
  mapi::Message& MAPIOBJECT() override { return real()->MAPIOBJECT(); }
  CALL(void, Save, (), ())
  CALL(void, Delete, (), ())
};

struct FaultyTask : FaultyItem<TaskItem> {
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

struct FaultyAppointment : FaultyItem<AppointmentItem> {
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

struct FaultyItems : Faulty<Items> {
  using Faulty::Faulty;
  CALL(std::int32_t, Count, (), ())
  GIVE_AS("Items.Item", outlook::Item, faultyItem, Item, (std::int32_t index), (index))
  GIVE(Items, inFrontOf<FaultyItems>, Restrict, (std::string_view filter), (filter))
  WRITE(Sort, std::string_view)
  WRITE(setIncludeRecurrences, bool)
  GIVE(outlook::Item, faultyItem, GetFirst, (), ())
  GIVE(outlook::Item, faultyItem, GetNext, (), ())
  mapi::Contents& MAPIOBJECT() override { return real()->MAPIOBJECT(); }
};

struct FaultyFolder : Faulty<Folder> {
  using Faulty::Faulty;
  READ(std::string, Name)
  READ(std::string, StoreID)
  GIVE(Items, inFrontOf<FaultyItems>, items, (), ())
};

struct FaultyNameSpace : Faulty<NameSpace> {
  using Faulty::Faulty;
  CALL(void, Logon, (const std::optional<std::string>& profile, bool showDialog), (profile, showDialog))
  GIVE(Folder, inFrontOf<FaultyFolder>, GetDefaultFolder, (DefaultFolder folder), (folder))
  GIVE(Item, faultyItem, GetItemFromID, (std::string_view entryId, std::string_view storeId), (entryId, storeId))
};

struct FaultyApplication : Faulty<Application> {
  using Faulty::Faulty;
  GIVE(NameSpace, inFrontOf<FaultyNameSpace>, GetNamespace, (std::string_view type), (type))
  GIVE(NameSpace, inFrontOf<FaultyNameSpace>, Session, (), ())
  GIVE(Item, faultyItem, CreateItem, (ItemType type), (type))
};

// The real wrapper works on the wizard's own double, so that the item's calls are counted beneath the wrapper's.
template <class Kind, class Interface = SafeItem<Kind>>
struct FaultySafeItem : Faulty<Interface, std::unique_ptr<Interface>> {
  using Faulty<Interface, std::unique_ptr<Interface>>::Faulty;
  using Faulty<Interface, std::unique_ptr<Interface>>::real;
  WRITE(setItem, std::shared_ptr<Kind>)
  CALL_AS("SafeItem.Item", std::shared_ptr<Kind>, Item, () const, ())
  CALL_AS("SafeItem.body", std::string, body, (), ())
  CALL_AS("SafeItem.UserProperties", std::shared_ptr<outlook::UserProperties>, UserProperties, (), ())
  CALL(std::int32_t, GetIDsFromNames, (std::string_view set, std::string_view name), (set, name))
};

using FaultySafeTask = FaultySafeItem<TaskItem>;

struct FaultySafeAppointment : FaultySafeItem<AppointmentItem, SafeAppointmentItem> {
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
  WRITE(setLpProp, std::string)

 private:
  Restriction* real() { return real_; }
  Restriction* real_;
  std::vector<std::unique_ptr<FaultyRestriction>> parts_;
};

class FaultyTable : public Faulty<MAPITable, std::unique_ptr<MAPITable>>, private TableFilter {
 public:
  using Faulty::Faulty;
  void setItem(std::shared_ptr<Items> items) override {
    call("outlook.MAPITable.setItem", [&] { real()->setItem(std::move(items)); });
  }
  WRITE(setColumns, std::vector<std::int32_t>)
  CALL(std::vector<Variant>, GetRow, (), ())
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

struct FaultyUtils : Faulty<MAPIUtils, std::unique_ptr<MAPIUtils>> {
  using Faulty::Faulty;
  CALL(std::string, HrArrayToString, (const Variant& value), (value))
  CALL(void, Cleanup, (), ())
};

}  // namespace

#define MAKE(Pointer, standIn, name)                                      \
  Pointer FaultyOutlook::name() {                                         \
    return standIn(call("outlook." #name, [&] { return real_.name(); })); \
  }
MAKE(std::shared_ptr<Application>, inFrontOf<FaultyApplication>, activeApplication)
MAKE(std::shared_ptr<Application>, inFrontOf<FaultyApplication>, createApplication)
MAKE(std::unique_ptr<SafeTaskItem>, std::make_unique<FaultySafeTask>, createSafeTaskItem)
MAKE(std::unique_ptr<SafeAppointmentItem>, std::make_unique<FaultySafeAppointment>, createSafeAppointmentItem)
MAKE(std::unique_ptr<MAPITable>, std::make_unique<FaultyTable>, createMAPITable)
MAKE(std::unique_ptr<MAPIUtils>, std::make_unique<FaultyUtils>, createMAPIUtils)

}  // namespace tarnel::test
