#include "clsVLProjectsList.h"

namespace tarnel {

bool clsVLProjectsList::GetData(std::shared_ptr<ado::Recordset>& rst) {
  return getAgain(rst, m_rst, sql_, OpenOperation::projectsGetData, "GetData");
}

}  // namespace tarnel
