#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Registry.h"

namespace tarnel {

// Where Outlook's mailbox is when neither a file nor a profile is named.
std::filesystem::path defaultMailbox();

// A name for a mailbox file. The path is absolute; it is empty where a key was made without one.
struct Profile {
  std::string name;
  std::filesystem::path mailbox;
};

// The user's Outlook profiles: subkeys of the key that the wizard lists, each with its mailbox's path as a value. Names
// are compared without regard to case.
class Profiles {
 public:
  explicit Profiles(Registry& registry) : registry_(registry) {}

  // In the order of their making.
  std::vector<Profile> list() const;
  // A relative path counts from the working folder; whether the file is there isn't looked at. Failure 5 for a name
  // that can't be a profile's, 457 for one that is there already, 75 when the registry can't be written.
  void add(const std::string& name, const std::filesystem::path& mailbox);
  // The mailbox file stays. Failure 5 when there is no such profile, 75 when the registry can't be written.
  void remove(std::string_view name);

  // None for an unknown name, or where no mailbox was set.
  std::optional<std::filesystem::path> mailboxOf(std::string_view name) const;
  // The same for a name as the wizard hands it over, each "&" in it doubled.
  std::optional<std::filesystem::path> mailboxOfChosen(std::string_view chosen) const;

 private:
  Registry& registry_;
};

}  // namespace tarnel
