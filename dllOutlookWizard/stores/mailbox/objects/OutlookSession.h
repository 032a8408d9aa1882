#pragma once

#include <memory>
#include <optional>
#include <string>

#include "Application.h"
#include "OutlookInstallation.h"

namespace tarnel::mailbox {

// A NameSpace on one mailbox at a time. A failed Logon leaves it logged off.
class OutlookSession : public outlook::NameSpace {
 public:
  // `running` is Outlook as this program started it; nothing when it only attached to another program's.
  OutlookSession(std::shared_ptr<OutlookInstallation> installation, std::shared_ptr<RunningOutlook> running)
      : installation_(std::move(installation)), running_(std::move(running)) {}

  void Logon(const std::optional<std::string>& profile, bool showDialog) override;
  std::shared_ptr<outlook::Folder> GetDefaultFolder(outlook::DefaultFolder folder) override;
  std::shared_ptr<outlook::Item> GetItemFromID(std::string_view entryId, std::string_view storeId) override;

  // Failure 440 before Logon.
  const std::shared_ptr<Mailbox>& mailbox() const;

 private:
  std::shared_ptr<OutlookInstallation> installation_;
  std::shared_ptr<RunningOutlook> running_;
  std::shared_ptr<Mailbox> mailbox_;
};

}  // namespace tarnel::mailbox
