#include "clsTaskAppts.h"

namespace tarnel {

bool clsTaskAppts::GetData(std::shared_ptr<ado::Recordset>& rst) {
  return getAgain(rst, m_rst, sql_, OpenOperation::apptsGetData, "GetData");
}

bool clsTaskAppts::GetDataKEY(std::shared_ptr<ado::Recordset>& rst) {
  return getAgain(rst, m_rstKey, sqlKey_, OpenOperation::apptsGetDataKEY, "GetDataKEY");
}

}  // namespace tarnel
