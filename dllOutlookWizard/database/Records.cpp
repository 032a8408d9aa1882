#include "Records.h"

#include "LocateDatabase.h"
#include "Platform.h"
#include "StandardHandler.h"
#include "m_OutlookWizard.h"

namespace tarnel {

void closeIfOpen(ado::Recordset& rows) {
  if (rows.state() == ado::State::open) rows.Close();
}

void Records::makeSureOfConnection() {
  // What it can't find shows in the open that follows.
  if (session().theszConnect.empty()) LocateDatabase();
}

Records::RecordsetPtr Records::opened(const std::string& statement, OpenOperation operation) {
  makeSureOfConnection();
  const OpenMode& mode = openModeOf(operation);
  auto recordset = std::make_shared<ado::Recordset>();
  recordset->setCursorLocation(mode.location);
  recordset->setCursorType(mode.cursor);
  recordset->setLockType(mode.lock);
  recordset->Open(platform().database, statement, session().theszConnect, mode.openCursor, mode.openLock,
                  ado::CommandType::text);
  if (mode.disconnected) recordset->disconnect();
  return recordset;
}

bool Records::getAgain(RecordsetPtr& rst, RecordsetPtr& member, const std::string& statement, OpenOperation operation,
                       std::string_view procedure) {
  rst.reset();
  return standardHandler<bool>(module_, procedure, [&](bool& result) {
    member = opened(statement, operation);
    rst = member;
    result = true;
  });
}

}  // namespace tarnel
