#include "clsTaskList.h"

#include "StandardHandler.h"

namespace tarnel {

bool clsTaskList::CustomSortRST(const std::string& field) {
  return standardHandler<bool>(module_, "CustomSortRST", [&](bool& result) {
    std::string name;
    if (!ignoringFailures([&] { name = recordset().Fields(field).Name(); })) return;
    sortBy(field);
    result = true;
  });
}

void clsTaskList::UpdateBatchRST() {
  standardHandler(module_, "UpdateBatchRST", [&] { recordset().UpdateBatch(ado::Affect::allChapters); });
}

void clsTaskList::Class_GetDataMember(const std::string& DataMember, std::shared_ptr<ado::Recordset>& Data) {
  standardHandler(module_, "Class_GetDataMember", [&] {
    if (DataMember != "Recordset") return;
    if (m_rst) closeIfOpen(*m_rst);
    openMember(OpenOperation::taskListDataMember);
    Data = m_rst;
  });
}

bool clsTaskList::renumber(std::string_view column) {
  ignoringFailures([&] {
    const RecordsetPtr rows = opened(sql_, OpenOperation::taskListForceCustSort);
    for (; !rows->atEOF(); rows->MoveNext()) rows->Fields(column).setValue(rows->AbsolutePosition());
    rows->UpdateBatch(ado::Affect::allChapters);
    rows->Close();
  });
  return true;
}

}  // namespace tarnel
