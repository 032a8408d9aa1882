#include "Profiles.h"

#include <algorithm>

#include "CRegistry.h"
#include "Captions.h"
#include "Conversions.h"
#include "Failure.h"
#include "OutlookProfilesKey.h"
#include "UserFolders.h"

namespace tarnel {
namespace {

constexpr const char* mailboxValue = "Mailbox";
// What a key name may hold at most, in characters; here in bytes.
constexpr std::size_t longestName = 255;

std::string profilesPath() { return CRegistry::pathOf(rootKey::currentUser, outlookProfilesKey); }
std::string pathOf(std::string_view name) { return profilesPath().append("\\").append(name); }

// Why this can't be a profile's name; empty when it can.
std::string objection(std::string_view name) {
  const auto isControl = [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; };
  if (name.find_first_not_of(' ') == std::string_view::npos) return "a profile needs a name";
  if (name.size() > longestName) return "it is longer than " + std::to_string(longestName) + " bytes";
  if (name.find('\\') != std::string_view::npos) return "it holds a backslash, which parts keys";
  if (std::any_of(name.begin(), name.end(), isControl)) return "it holds a control character";
  if (equalsIgnoringCase(name, "NONE")) return "this name says that no profile is chosen";
  return {};
}

void requireWritten(bool written, std::string_view what, std::string_view name) {
  if (written) return;
  throw Failure(failure::pathAccess, "The profile \"" + std::string(name) + "\" can't be " + std::string(what) +
                                         ": the settings file in the user's configuration folder can't be written. "
                                         "Check its permissions and the free space.");
}

}  // namespace

std::filesystem::path defaultMailbox() { return userFolders::data() / "Outlook.mailbox"; }

std::vector<Profile> Profiles::list() const {
  std::vector<Profile> profiles;
  for (const std::string& name : registry_.subKeys(profilesPath()))
    profiles.push_back({name, mailboxOf(name).value_or(std::filesystem::path())});
  return profiles;
}

void Profiles::add(const std::string& name, const std::filesystem::path& mailbox) {
  const auto refuse = [&name](std::int32_t number, const std::string& why) {
    throw Failure(number, "The profile \"" + name + "\" can't be added: " + why + ".");
  };
  if (const std::string why = objection(name); !why.empty()) refuse(failure::invalidCall, why);
  if (mailbox.empty()) refuse(failure::invalidCall, "it needs the path of a mailbox file");
  const auto held = registry_.hold();
  if (registry_.keyExists(pathOf(name)))
    refuse(failure::keyNotUnique, "there is one of this name; remove it first or choose another name");
  requireWritten(registry_.setValue(pathOf(name), mailboxValue, std::filesystem::absolute(mailbox).string()), "added",
                 name);
}

void Profiles::remove(std::string_view name) {
  const auto held = registry_.hold();
  const std::vector<std::string> names = registry_.subKeys(profilesPath());
  const bool known =
      std::any_of(names.begin(), names.end(), [name](const auto& each) { return equalsIgnoringCase(each, name); });
  if (!known)
    throw Failure(failure::invalidCall, "There is no profile \"" + std::string(name) +
                                            "\" to remove. \"tarnel profile list\" shows those there are.");
  // With the last profile goes the key itself: the wizard takes a key without profiles for a damaged one.
  requireWritten(registry_.deleteKey(names.size() == 1 ? profilesPath() : pathOf(name)), "removed", name);
}

std::optional<std::filesystem::path> Profiles::mailboxOf(std::string_view name) const {
  const std::string mailbox = textOrEmpty(registry_.value(pathOf(name), mailboxValue));
  return mailbox.empty() ? std::nullopt : std::optional<std::filesystem::path>(mailbox);
}

std::optional<std::filesystem::path> Profiles::mailboxOfChosen(std::string_view chosen) const {
  for (const std::string& name : registry_.subKeys(profilesPath()))
    if (equalsIgnoringCase(ZapAmps(name), chosen)) return mailboxOf(name);
  return {};
}

}  // namespace tarnel
