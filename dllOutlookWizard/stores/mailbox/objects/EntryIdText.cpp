#include "EntryIdText.h"

#include "Conversions.h"
#include "Failure.h"

namespace tarnel::mailbox {

std::string EntryIdText::HrArrayToString(const Variant& value) {
  const auto* bytes = value.get<Bytes>();
  if (!bytes) failTypeMismatch();
  return hexText(*bytes);
}

}  // namespace tarnel::mailbox
