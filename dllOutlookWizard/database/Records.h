#pragma once

#include <memory>
#include <string>

#include "OpenMode.h"
#include "Recordset.h"
#include "ReportWizardError.h"

namespace tarnel {

void closeIfOpen(ado::Recordset& rows);

// What the record classes share: a statement, a recordset, and how it is opened. A recordset that is handed out belongs
// to the caller as well, who reads and writes it directly.
class Records {
 public:
  explicit Records(const Module& module) : module_(module) {}
  virtual ~Records() = default;
  Records(const Records&) = delete;
  Records& operator=(const Records&) = delete;

  void SetSQL(std::string SQL) { sql_ = std::move(SQL); }

 protected:
  using RecordsetPtr = std::shared_ptr<ado::Recordset>;

  // Finds the database first when the host named none.
  static void makeSureOfConnection();
  static RecordsetPtr opened(const std::string& statement, OpenOperation operation);

  // Opens again into `member` and hands it out. True when the recordset is open; after a failure, which is reported,
  // false and an empty `rst`.
  bool getAgain(RecordsetPtr& rst, RecordsetPtr& member, const std::string& statement, OpenOperation operation,
                std::string_view procedure);

  const Module& module_;
  std::string sql_;
  RecordsetPtr m_rst;
};

}  // namespace tarnel
