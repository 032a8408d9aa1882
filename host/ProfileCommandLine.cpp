#include <iostream>
#include <memory>

#include "FileRegistry.h"
#include "Folders.h"
#include "MailboxFile.h"
#include "Profiles.h"
#include "SubCommands.h"

namespace tarnel::host {
namespace {

struct Options {
  std::string name;
  std::filesystem::path file;
};

bool list(Profiles& profiles, const Options&) {
  for (const Profile& profile : profiles.list()) std::cout << profile.name << '\t' << profile.mailbox.string() << '\n';
  return true;
}

bool add(Profiles& profiles, const Options& options) {
  profiles.add(options.name, options.file);
  try {
    if (!std::filesystem::exists(options.file)) mailbox::createMailbox(std::filesystem::absolute(options.file));
  } catch (...) {
    profiles.remove(options.name);
    throw;
  }
  return true;
}

bool remove(Profiles& profiles, const Options& options) {
  profiles.remove(options.name);
  return true;
}

}  // namespace

void addProfileCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<Options>();
  CLI::App* profile = app.add_subcommand("profile", "Your Outlook profiles: names for mailbox files");
  profile->require_subcommand(1);
  const auto addCommand = [&](const char* name, const char* about, bool (*act)(Profiles&, const Options&)) {
    CLI::App* command = profile->add_subcommand(name, about);
    command->callback([&action, options, act] {
      action = [options, act] {
        FileRegistry registry(folders::registry());
        Profiles profiles(registry);
        return act(profiles, *options);
      };
    });
    return command;
  };
  addCommand("list", "All profiles with their mailbox files", list);
  CLI::App* adding = addCommand("add", "Add a profile", add);
  adding->add_option("NAME", options->name, "The profile's name")->required();
  adding->add_option("FILE", options->file, "Its mailbox, made where it is missing")->required();
  addCommand("remove", "Forget a profile; its mailbox stays", remove)
      ->add_option("NAME", options->name, "The profile's name")
      ->required();
}

}  // namespace tarnel::host
