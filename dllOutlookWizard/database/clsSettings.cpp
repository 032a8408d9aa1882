#include "clsSettings.h"

namespace tarnel {

bool clsSettings::GetData(std::shared_ptr<ado::Recordset>& rst) {
  return getAgain(rst, m_rst, sql_, OpenOperation::settingsGetData, "GetData");
}

}  // namespace tarnel
