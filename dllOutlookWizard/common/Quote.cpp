#include "Quote.h"

#include "Conversions.h"
#include "StandardHandler.h"

namespace tarnel {

std::string Quote(const Variant& value) {
  return standardHandler<std::string>(modules::m_OutlookWizard, "Quote",
                                      [&](std::string& result) { result = '"' + toText(value) + '"'; });
}

}  // namespace tarnel
