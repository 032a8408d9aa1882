#include "CommandRecords.h"

#include "Failure.h"
#include "Platform.h"
#include "StandardHandler.h"
#include "m_OutlookWizard.h"

namespace tarnel {

bool CommandRecords::GetDataKEY(std::shared_ptr<ado::Recordset>& rst) {
  rst.reset();
  return standardHandler<bool>(module_, "GetDataKEY", [&](bool& result) {
    if (!m_rst) openMember(getDataKEY_);
    rst = m_rst;
    result = m_rst->state() == ado::State::open;
  });
}

std::int32_t CommandRecords::doCMDExec() {
  return standardHandler<std::int32_t>(module_, "doCMDExec", [&](std::int32_t& result) {
    std::optional<ado::Command> once;
    std::optional<ado::Command>& command = commandLife_ == CommandLife::oneExecution ? once : command_;
    if (!command) {
      makeSureOfConnection();
      command.emplace(platform().database, session().theszConnect);
    }
    command->setCommandText(commandSql_);
    result = command->Execute();
  });
}

bool CommandRecords::ClearSortRST() {
  return standardHandler<bool>(module_, "ClearSortRST", [&](bool& result) {
    sortBy({});
    result = true;
  });
}

bool CommandRecords::CustomFilter(const std::string& crit) {
  return ignoringFailures([&] { recordset().setFilter(crit); });
}

void CommandRecords::ResyncRST() {
  standardHandler(module_, "ResyncRST", [&] { recordset().Resync(ado::Affect::all, ado::ResyncValues::all); });
}

void CommandRecords::openMember(OpenOperation operation) {
  m_rst = opened(sql_, operation);
  recordsetOpened();
}

ado::Recordset& CommandRecords::recordset() const {
  if (!m_rst) failObjectNotSet();
  return *m_rst;
}

void CommandRecords::sortBy(const std::string& field) { recordset().setSort(field); }

void CommandRecords::requery(std::string_view procedure) {
  constexpr std::int32_t options = -1;
  standardHandler(module_, procedure, [&] { recordset().Requery(options); });
}

}  // namespace tarnel
