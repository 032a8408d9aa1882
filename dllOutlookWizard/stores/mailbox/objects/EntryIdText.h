#pragma once

#include "Redemption.h"

namespace tarnel::mailbox {

// Our objects free what they hold when they go, so that Cleanup finds nothing left to do.
class EntryIdText : public outlook::MAPIUtils {
 public:
  std::string HrArrayToString(const Variant& value) override;
  void Cleanup() override {}
};

}  // namespace tarnel::mailbox
