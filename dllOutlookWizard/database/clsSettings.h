#pragma once

#include "Records.h"

namespace tarnel {

// The host's settings, table Settings.
class clsSettings : public Records {
 public:
  clsSettings() : Records(modules::clsSettings) {}

  // Opens a new recordset each time.
  bool GetData(std::shared_ptr<ado::Recordset>& rst);
};

}  // namespace tarnel
