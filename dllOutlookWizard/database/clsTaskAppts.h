#pragma once

#include "Records.h"

namespace tarnel {

// Task Appointments, table TASKAPPTS. Holds two recordsets, each with a statement of its own.
class clsTaskAppts : public Records {
 public:
  clsTaskAppts() : Records(modules::clsTaskAppts) {}

  void SetSQLKey(std::string SQL) { sqlKey_ = std::move(SQL); }

  // Each opens a new recordset each time: by SetSQL, and by SetSQLKey.
  bool GetData(std::shared_ptr<ado::Recordset>& rst);
  bool GetDataKEY(std::shared_ptr<ado::Recordset>& rst);

 private:
  std::string sqlKey_;
  RecordsetPtr m_rstKey;
};

}  // namespace tarnel
