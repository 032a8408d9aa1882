#include "OutlookInstallation.h"

#include <system_error>

#include "Failure.h"

namespace tarnel::mailbox {

std::filesystem::path OutlookInstallation::pathOf(const std::optional<std::string>& profile) const {
  const std::string name = profile ? *profile : RunningOutlook::profile(defaultMailbox_).value_or("");
  if (name.empty()) return defaultMailbox_;
  if (const auto path = profiles_(name)) return *path;
  throw Failure(failure::automation,
                "Outlook can't log on: there is no profile \"" + name + "\". Choose one that exists.",
                "Outlook.NameSpace");
}

std::shared_ptr<Mailbox> OutlookInstallation::mailbox(const std::optional<std::string>& profile) {
  const std::filesystem::path named = pathOf(profile);
  std::error_code unreadable;
  std::filesystem::path path = std::filesystem::weakly_canonical(named, unreadable);
  if (unreadable) path = named;  // opening it tells why
  return mailboxes_.to(path, [&] { return std::make_unique<Mailbox>(path, locale_, clock_); });
}

std::shared_ptr<RunningOutlook> OutlookInstallation::start() {
  auto running = running_.lock();
  if (!running) {
    running = RunningOutlook::start(defaultMailbox_);
    running_ = running;
  }
  return running;
}

}  // namespace tarnel::mailbox
