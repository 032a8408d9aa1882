#include "FilesInUse.h"

#include "ConnectionString.h"
#include "Profiles.h"
#include "StandardHandler.h"
#include "m_OutlookWizard.h"

namespace tarnel {

void addFilesInUse(FailureReport& report, const std::optional<std::filesystem::path>& mailbox, Registry& registry) {
  ignoringFailures([&] { report.database = ado::parseConnectionString(session().theszConnect)["DATA SOURCE"]; });
  ignoringFailures([&] {
    if (mailbox)
      report.mailbox = mailbox->string();
    else if (!profileIsChosen())
      report.mailbox = defaultMailbox().string();
    else if (const auto file = Profiles(registry).mailboxOfChosen(session().theOutlookProfile))
      report.mailbox = file->string();
  });
}

}  // namespace tarnel
