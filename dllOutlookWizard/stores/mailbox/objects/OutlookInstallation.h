#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "Connections.h"
#include "Mailbox.h"
#include "RunningOutlook.h"

namespace tarnel::mailbox {

// The mailbox file of a profile; none for an unknown profile.
using ProfileLookup = std::function<std::optional<std::filesystem::path>(const std::string& profile)>;

// What all Outlook objects of a factory share: profiles, open mailboxes, and the running Outlook.
class OutlookInstallation {
 public:
  OutlookInstallation(ProfileLookup profiles, std::filesystem::path defaultMailbox, Locale locale, const Clock& clock)
      : profiles_(std::move(profiles)),
        defaultMailbox_(std::move(defaultMailbox)),
        locale_(std::move(locale)),
        clock_(clock) {}

  // The open mailbox of that profile, opened if need be. Failure 440 when the profile is not known or its mailbox is
  // out of reach.
  std::shared_ptr<Mailbox> mailbox(const std::optional<std::string>& profile);

  bool isRunning() const { return RunningOutlook::profile(defaultMailbox_).has_value(); }
  // Outlook as this program runs it, started if need be; nothing when another program runs it.
  std::shared_ptr<RunningOutlook> start();

 private:
  std::filesystem::path pathOf(const std::optional<std::string>& profile) const;

  ProfileLookup profiles_;
  std::filesystem::path defaultMailbox_;
  Locale locale_;
  const Clock& clock_;
  sqlite::Connections<Mailbox> mailboxes_;
  std::weak_ptr<RunningOutlook> running_;
};

}  // namespace tarnel::mailbox
