#pragma once

#include "CommandRecords.h"

namespace tarnel {

// Any statement. Makes a new command for each execution.
class clsUtilCMD : public CommandRecords {
 public:
  clsUtilCMD() : CommandRecords(modules::clsUtilCMD, OpenOperation::utilGetDataKEY, CommandLife::oneExecution) {}

  // The recordset's rows as they are now.
  std::int32_t GetRowCount() const;
  // The result carries no meaning.
  bool CustomSortRST(const std::string& field);
  // For the member "Recordset" hands out the recordset, opened when there was none; does nothing for any other.
  void Class_GetDataMember(const std::string& DataMember, std::shared_ptr<ado::Recordset>& Data);
};

}  // namespace tarnel
