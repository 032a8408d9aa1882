#include "LinkWalk.h"

#include "ClassFactory.h"
#include "OutlookItems.h"
#include "OutlookLink.h"
#include "Platform.h"
#include "StandardHandler.h"
#include "TaskLists.h"
#include "manageOutlookRef.h"

namespace tarnel {
namespace {

std::shared_ptr<outlook::Item> firstItem(outlook::Items& items) {
  try {
    return items.Item(1);
  } catch (const Failure& failure) {
    if (items.Count() != 0) throw;
    throw Failure(failure.number(),
                  failure.description() +
                      " Outlook's Tasks folder is empty, and a link can be looked up through one of its items alone. "
                      "Make any task in Outlook, then try again.",
                  failure.source());
  }
}

// The tag of the link property differs between stores, and only an item can be asked for it.
std::int32_t linkPropertyTag(outlook::Items& items) {
  const auto wrapper = safeItem(outlook::asTask(firstItem(items)));
  return wrapper->GetIDsFromNames(outlook::mapi::publicStrings, outlookLink::tarnelGuid) | outlook::mapi::typeString8;
}

void restrictToGuid(outlook::TableFilter& filter, std::int32_t tag, const std::string& guid) {
  using outlook::mapi::RestrictionKind;
  filter.Clear();
  outlook::Restriction& both = filter.SetKind(RestrictionKind::conjunction);
  both.Add(RestrictionKind::exists).setUlPropTag(tag);
  outlook::Restriction& equal = both.Add(RestrictionKind::property);
  equal.setRelop(outlook::mapi::relopEqual);
  equal.setUlPropTag(tag);
  equal.setLpProp(guid);
  filter.Restrict();
}

}  // namespace

bool LinkedItem::isLive() const { return item && !isThrownAway(*item); }

bool walkLinkedItems(const std::string& guid, const std::function<void(const LinkedItem&)>& visit) {
  const auto folder = outlookApplication().Session()->GetDefaultFolder(outlook::DefaultFolder::tasks);
  const auto items = folder->items();
  const auto table = platform().outlook.createMAPITable();
  table->setItem(items);
  restrictToGuid(table->Filter(), linkPropertyTag(*items), guid);
  table->setColumns({outlook::mapi::entryId});
  if (!table->Filter().FindFirst(true)) return false;

  const auto utils = platform().outlook.createMAPIUtils();
  do {
    const std::vector<Variant> row = table->GetRow();
    if (row.empty()) continue;
    LinkedItem match;
    match.entryId = utils->HrArrayToString(row.front());
    const bool fetched = ignoringFailures([&] {
      if (const auto item = outlookNameSpace().GetItemFromID(match.entryId, folder->StoreID()))
        match.item = outlook::asTask(item);
    });
    if (fetched) visit(match);
  } while (table->Filter().FindNext(true));
  return true;
}

}  // namespace tarnel
