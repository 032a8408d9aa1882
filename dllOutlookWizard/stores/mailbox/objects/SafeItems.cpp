#include "SafeItems.h"

#include "Conversions.h"

namespace tarnel::mailbox {

std::int32_t propertyTag(outlook::mapi::Message& item, std::string_view set, std::string_view name) {
  if (!equalsIgnoringCase(set, outlook::mapi::publicStrings) || name.empty())
    throw Failure(failure::automation,
                  "The named property \"" + std::string(name) + "\" of the set " + std::string(set) +
                      " can't be looked up: only the public set has named properties here.",
                  "Redemption.SafeItem");
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(item.idOfName(name)) << 16);
}

}  // namespace tarnel::mailbox
