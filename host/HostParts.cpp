#include "HostParts.h"

namespace tarnel::host {

Composition hostParts(const std::optional<std::filesystem::path>& mailbox) {
  return Composition(
      [mailbox](Registry& registry, const std::string& profile) {
        return mailbox ? mailbox : Profiles(registry).mailboxOfChosen(profile);
      },
      mailbox.value_or(defaultMailbox()));
}

}  // namespace tarnel::host
