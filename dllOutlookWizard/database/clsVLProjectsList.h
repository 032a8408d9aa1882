#pragma once

#include "Records.h"

namespace tarnel {

// The projects, table PROJECTS.
class clsVLProjectsList : public Records {
 public:
  clsVLProjectsList() : Records(modules::clsVLProjectsList) {}

  // Opens a new recordset each time, which is then detached: nothing can be written through it.
  bool GetData(std::shared_ptr<ado::Recordset>& rst);
};

}  // namespace tarnel
