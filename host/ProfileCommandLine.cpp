#include <iostream>
#include <memory>

#include "FileRegistry.h"
#include "MailboxFile.h"
#include "Profiles.h"
#include "SubCommands.h"
#include "TerminalText.h"
#include "UserFolders.h"

namespace tarnel::host {
namespace {

struct ProfileOptions {
  std::string name;
  std::filesystem::path file;
};

bool listProfiles(Profiles& profiles, const ProfileOptions&) {
  for (const Profile& profile : profiles.list())
    std::cout << onOneLine(profile.name) << '\t' << onOneLine(profile.mailbox.string()) << '\n';
  return true;
}

bool addProfile(Profiles& profiles, const ProfileOptions& options) {
  const std::filesystem::path file = std::filesystem::absolute(options.file);
  const bool isThere = std::filesystem::exists(file);
  if (isThere) mailbox::inspectMailbox(file);
  profiles.add(options.name, file);
  try {
    if (!isThere) mailbox::createMailbox(file);
  } catch (...) {
    profiles.remove(options.name);
    throw;
  }
  return true;
}

bool removeProfile(Profiles& profiles, const ProfileOptions& options) {
  profiles.remove(options.name);
  return true;
}

}  // namespace

void addProfileCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<ProfileOptions>();
  CLI::App* profile = app.add_subcommand("profile", "Your Outlook profiles: names for mailbox files");
  profile->require_subcommand(1);
  const auto addCommand = [&](const char* name, const char* about, bool (*act)(Profiles&, const ProfileOptions&)) {
    CLI::App* command = profile->add_subcommand(name, about);
    command->callback([&action, options, act] {
      action = [options, act] {
        FileRegistry registry(userFolders::registry());
        Profiles profiles(registry);
        return act(profiles, *options);
      };
    });
    return command;
  };
  addCommand("list", "All profiles with their mailbox files", listProfiles);
  CLI::App* adding = addCommand("add", "Add a profile", addProfile);
  adding->add_option("NAME", options->name, "The profile's name")->required();
  adding->add_option("FILE", options->file, "Its mailbox, made where it is missing")->required()->check(notEmpty());
  addCommand("remove", "Forget a profile; its mailbox stays", removeProfile)
      ->add_option("NAME", options->name, "The profile's name")
      ->required();
}

}  // namespace tarnel::host
