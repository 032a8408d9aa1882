#include <iostream>
#include <memory>

#include "Failure.h"
#include "FileRegistry.h"
#include "MailboxCommands.h"
#include "Profiles.h"
#include "SubCommands.h"
#include "SystemClock.h"
#include "UserFolders.h"

namespace tarnel::host {
namespace {

struct MailboxOptions {
  std::filesystem::path mailbox;
  std::string profile;
  std::filesystem::path file;
  std::string entryId;
  std::string folder;
  bool json = false;
};

std::filesystem::path mailboxOf(const MailboxOptions& options) {
  if (!options.mailbox.empty()) return options.mailbox;
  if (options.profile.empty()) return defaultMailbox();
  FileRegistry registry(userFolders::registry());
  const auto file = Profiles(registry).mailboxOf(options.profile);
  if (!file) throw Failure(failure::invalidCall, "There is no profile \"" + options.profile + "\".");
  return *file;
}

}  // namespace

void addMailboxCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<MailboxOptions>();
  CLI::App* mailbox = app.add_subcommand("mailbox", "Look into Outlook's mailbox, fill it, or change it");
  mailbox->require_subcommand(1);
  auto* file =
      mailbox->add_option("--mailbox", options->mailbox, "The mailbox file; your own when left out")->check(notEmpty());
  mailbox->add_option("--profile", options->profile, "The mailbox of this profile")->excludes(file);

  const auto add = [&](const char* name, const char* about, const std::function<bool(const MailboxCommands&)>& act) {
    CLI::App* command = mailbox->add_subcommand(name, about)->fallthrough();
    command->callback([&action, options, act] {
      action = [options, act] {
        const SystemClock clock;
        return act(MailboxCommands(mailboxOf(*options), clock, std::cout));
      };
    });
    return command;
  };
  add("list", "All items of all folders", [options](const MailboxCommands& to) {
    to.list(options->json);
    return true;
  })->add_flag("--json", options->json, "One JSON array");
  add("import", "Take the tasks and events of an iCalendar file",
      [options](const MailboxCommands& to) { return to.import(options->file, std::cerr); })
      ->add_option("FILE", options->file, "The .ics file")
      ->required()
      ->check(notEmpty());
  add("export", "Write all tasks and events as an iCalendar file",
      [options](const MailboxCommands& to) {
        to.exportTo(options->file);
        return true;
      })
      ->add_option("FILE", options->file, "The .ics file; replaced when it is there")
      ->required()
      ->check(notEmpty());
  add("delete", "Put an item into Deleted Items; from there it goes for good",
      [options](const MailboxCommands& to) {
        to.remove(options->entryId);
        return true;
      })
      ->add_option("ENTRYID", options->entryId, "The item's entry id, as list gives it")
      ->required();
  CLI::App* move = add("move", "Put an item into another folder", [options](const MailboxCommands& to) {
    to.move(options->entryId, options->folder);
    return true;
  });
  move->add_option("ENTRYID", options->entryId, "The item's entry id, as list gives it")->required();
  move->add_option("FOLDER", options->folder, "Tasks, Calendar or \"Deleted Items\"")->required();
}

}  // namespace tarnel::host
