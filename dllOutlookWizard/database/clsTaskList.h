#pragma once

#include "CommandRecords.h"

namespace tarnel {

// Tasks, table TASKS. Keeps its command from one execution to the next.
class clsTaskList : public CommandRecords {
 public:
  clsTaskList() : CommandRecords(modules::clsTaskList, OpenOperation::taskListGetDataKEY, CommandLife::object) {}

  // As many rows as there were at the open; 0 before it.
  std::int32_t GetRowCount() const { return rowCount_; }
  // Does nothing for a name that is no field's. The result carries no meaning.
  bool CustomSortRST(const std::string& field);
  // Each numbers the rows of SetSQL's statement from 1 in one custom order, in a recordset of its own. True whatever
  // fails.
  bool ForceCustSortCurrent() { return renumber("tskCustSortCur"); }
  bool ForceCustSortTarnel() { return renumber("tskCustSortTarnel"); }
  bool ForceCustSortProject() { return renumber("tskCustSortProj"); }

  void RequeryRST() { requery("RequeryRST"); }
  void UpdateBatchRST();
  // For the member "Recordset" opens again, closing what is open, and hands it out; does nothing for any other.
  void Class_GetDataMember(const std::string& DataMember, std::shared_ptr<ado::Recordset>& Data);

 private:
  void recordsetOpened() override { rowCount_ = m_rst->RecordCount(); }
  bool renumber(std::string_view column);

  std::int32_t rowCount_ = 0;
};

}  // namespace tarnel
