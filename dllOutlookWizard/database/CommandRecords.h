#pragma once

#include <optional>

#include "Command.h"
#include "Records.h"

namespace tarnel {

// What the record classes with a recordset of one statement and a command share.
class CommandRecords : public Records {
 public:
  void SetCMDSQL(std::string SQL) { commandSql_ = std::move(SQL); }

  // Hands back the recordset that the object has, whatever SetSQL says by now, and opens one when it has none. True
  // when it is open.
  bool GetDataKEY(std::shared_ptr<ado::Recordset>& rst);
  // The number of rows that the statement of SetCMDSQL touched; 0 after a failure.
  std::int32_t doCMDExec();

  // Empties the recordset's sort. The result carries no meaning.
  bool ClearSortRST();
  // Without a criterion: no filter. False when it fails, which is not reported.
  bool CustomFilter(const std::string& crit = {});

  // All rows, all values.
  void ResyncRST();
  // Runs the statement of the open again.
  void UpdateRST() { requery("UpdateRST"); }

 protected:
  enum class CommandLife { oneExecution, object };

  CommandRecords(const Module& module, OpenOperation getDataKEY, CommandLife commandLife)
      : Records(module), getDataKEY_(getDataKEY), commandLife_(commandLife) {}

  // Called after each open of m_rst.
  virtual void recordsetOpened() {}
  void openMember(OpenOperation operation);
  // Failure 91 when the object has none yet.
  ado::Recordset& recordset() const;
  void sortBy(const std::string& field);
  void requery(std::string_view procedure);

 private:
  OpenOperation getDataKEY_;
  CommandLife commandLife_;
  std::string commandSql_;
  std::optional<ado::Command> command_;  // of CommandLife::object
};

}  // namespace tarnel
