#include "clsUtilCMD.h"

#include "StandardHandler.h"

namespace tarnel {

std::int32_t clsUtilCMD::GetRowCount() const {
  return standardHandler<std::int32_t>(module_, "GetRowCount",
                                       [&](std::int32_t& result) { result = recordset().RecordCount(); });
}

bool clsUtilCMD::CustomSortRST(const std::string& field) {
  return standardHandler<bool>(module_, "CustomSortRST", [&](bool& result) {
    sortBy(field);
    result = true;
  });
}

void clsUtilCMD::Class_GetDataMember(const std::string& DataMember, std::shared_ptr<ado::Recordset>& Data) {
  standardHandler(module_, "Class_GetDataMember", [&] {
    if (DataMember != "Recordset") return;
    if (!m_rst) openMember(OpenOperation::utilDataMember);
    Data = m_rst;
  });
}

}  // namespace tarnel
