#include "CommandLine.h"

#include <unistd.h>

#include <iostream>
#include <nlohmann/json.hpp>

#include "Conversions.h"
#include "NewDatabase.h"
#include "Profiles.h"
#include "SubCommands.h"
#include "SystemClock.h"
#include "TerminalText.h"
#include "WizardRun.h"

namespace tarnel::host {
namespace {

constexpr int succeeded = 0;
constexpr int failed = 1;
constexpr int wrongUsage = 2;

constexpr const char* about =
    "The Outlook Wizard of Tarnel: moves tasks and appointments between a task database and Outlook.";
constexpr const char* examples =
    "Examples:\n"
    "  tarnel new my-tasks.db --demo                  a task database with contents to try things on\n"
    "  tarnel wizard --database my-tasks.db           the wizard in a window\n"
    "  echo 'list smtTaskList(0)' | tarnel drive --database my-tasks.db\n";

// Up to day 1000 a date counts as none.
const Date firstDay = Date::of(1902, 9, 27);

std::string checkDate(const std::string& text) {
  const auto date = text.size() == 10 ? parseIsoDate(text) : std::nullopt;
  if (!date) return "A date is written YYYY-MM-DD, not " + text;
  if (*date > lastDayShown()) return "The last day is 9999-12-30, not " + text;
  return *date < firstDay ? "The first day is 1902-09-27, not " + text : std::string();
}

class CommandLine {
 public:
  CommandLine(int argc, char** argv) : argc_(argc), argv_(argv) {
    options_.database = defaultDatabase();
    app_.footer(examples);
    app_.require_subcommand(1);
    addNew();
    addWizard();
    addDrive();
    addPictures();
    addMailboxCommand(app_, action_);
    addProfileCommand(app_, action_);
  }

  // Output that got lost, on a full disk say, is a failure of every command.
  int run() {
    const int result = runCommand();
    if (std::cout.flush()) return result;
    std::cerr << "tarnel: The output can't be written. Is there room where it goes?" << std::endl;
    return result == succeeded ? failed : result;
  }

 private:
  int runCommand() {
    try {
      app_.parse(argc_, argv_);
      return action_() ? succeeded : failed;
    } catch (const CLI::ParseError& error) {
      return app_.exit(error) == 0 ? succeeded : wrongUsage;  // --help ends here too
    } catch (const std::exception& error) {
      std::cerr << "tarnel: " << forTerminal(error.what()) << std::endl;
      return failed;
    }
  }

  void addNew() {
    CLI::App* command = app_.add_subcommand("new", "Make a new task database; an existing file is never touched");
    command->add_option("FILE", file_, "The database to make")->capture_default_str()->check(notEmpty());
    command->add_flag("--demo", demo_, "Fill it with contents around today, and make the mailbox that goes with them");
    addMailboxOption(*command);
    command->callback([this] { action_ = [this] { return makeNew(); }; });
  }

  bool makeNew() {
    if (demo_)
      newDemo(file_, options_.mailbox.value_or(defaultMailbox()), SystemClock());
    else
      newDatabase(file_, options_.mailbox.value_or(defaultMailbox()));
    std::cout << "Made " << file_.string() << std::endl;
    return true;
  }

  void addMailboxOption(CLI::App& command) {
    command
        .add_option("--mailbox", options_.mailbox,
                    "Outlook's mailbox file; that of the chosen profile, or your own, when left out")
        ->check(notEmpty());
  }

  void addWizard() {
    CLI::App* command = app_.add_subcommand("wizard", "Open the wizard in a window");
    addWizardOptions(*command);
    command->callback([this] { action_ = [this] { return openWindow(); }; });
  }

  void addDrive() {
    CLI::App* command = app_.add_subcommand(
        "drive",
        "Run the wizard without a screen: commands on standard input, one JSON object a line on standard output");
    addWizardOptions(*command);
    command->footer(
        "Commands:\n"
        "  show | list CONTROL | sked N              state of the form, items of a control, rows of ctDaySked(N)\n"
        "  tab N | key CODE | closebox               what a user does to the form\n"
        "  click CONTROL KEY                         press an item\n"
        "  check CONTROL KEY on|off                  check an item or take its check away\n"
        "  choose CONTROL KEY CAPTION                pick an entry of a drop-down item\n"
        "  date YYYY-MM-DD | select N INDEX          the date box; select a row of ctDaySked(N)\n"
        "  follow LINK                               a link of the help page shown\n"
        "  resize WIDTH HEIGHT | split NAME WIDTH    in twips\n"
        "  answer yes|no                             answer the next question; without one the answer is no\n"
        "Words with blanks go in double quotes. The end of the input closes the window.\n");
    command->callback([this] { action_ = [this] { return drive(); }; });
  }

  void addPictures() {
    CLI::App* command =
        app_.add_subcommand("pictures", "Save a picture of the window for each tab, without needing a screen");
    command->add_option("FOLDER", pictures_.folder, "Where to save them")->required()->check(notEmpty());
    command->add_option("--scale", pictures_.scale, "Pixels to one of a plain screen")
        ->check(CLI::Range(1.0, 4.0))
        ->capture_default_str();
    command->add_flag("--dark", pictures_.dark, "In dark colours");
    addWizardOptions(*command);
    command->callback([this] { action_ = [this] { return savePictures(); }; });
  }

  void addWizardOptions(CLI::App& command) {
    command.add_option("--database", options_.database, "The task database")->capture_default_str()->check(notEmpty());
    addMailboxOption(command);
    command
        .add_option_function<std::string>(
            "--date", [this](const std::string& text) { options_.date = *parseIsoDate(text); },
            "The day to show, YYYY-MM-DD; today when left out")
        ->check(checkDate);
    command.add_flag("--appointments", options_.appointments, "Open on the Appointments tab");
    command.add_option("--hours", options_.hours, "The hours that the schedules show: all, or the working day")
        ->check(CLI::IsMember({"all", "day"}))
        ->capture_default_str();
    command.add_option("--interval", options_.interval, "Minutes a row of the schedules")
        ->check(CLI::IsMember({60, 30, 20, 15, 10, 5, 1}))
        ->capture_default_str();
    command.add_option("--print-settings", options_.printSettings,
                       "How help topics are printed: NAME=VALUE entries, each ended by a tab");
  }

  // A line for each fact, flushed: the wizard writes to the same place.
  static void writeFact(const nlohmann::ordered_json& fact) {
    std::cout << fact.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << std::endl;
  }

  static void writeEvent(const std::string& name, const EventArguments& values) {
    nlohmann::ordered_json fact{{"event", name}};
    for (const auto& [argument, value] : values) {
      const auto* number = value.get<std::int32_t>();
      fact[argument] = number ? nlohmann::ordered_json(*number) : nlohmann::ordered_json(textOrEmpty(value));
    }
    writeFact(fact);
  }

  // A database that was named must be there; the user's own comes into being with its first use.
  bool run(const FaceChooser& chooseFace, const EventTeller& tell) const {
    if (options_.database == defaultDatabase() && !std::filesystem::exists(options_.database))
      newDatabase(options_.database, options_.mailbox.value_or(defaultMailbox()));
    return runWizard(options_, chooseFace, tell);
  }

  bool drive() {
    const auto script = [](TarnelWizardControl& control) { return control.UseScript(STDIN_FILENO, STDOUT_FILENO); };
    const bool good = run(script, writeEvent);
    writeFact({{"returned", good}});
    return good;
  }

  bool openWindow() {
    return run([](TarnelWizardControl& control) { return control.UseWindow(); }, sayEvent);
  }

  bool savePictures() {
    const auto pictures = [this](TarnelWizardControl& control) {
      const TarnelText folder = tarnelText(pictures_.folder.c_str());
      return control.UsePictures(&folder, pictures_.scale, pictures_.dark ? TARNEL_YES : TARNEL_NO, STDOUT_FILENO);
    };
    options_.keepsOutlookUpToDate = false;  // pictures change nothing
    return run(pictures, sayEvent);
  }

  static void sayEvent(const std::string& name, const EventArguments& values) {
    std::cout << "event: " << name;
    for (const auto& [argument, value] : values) std::cout << ", " << argument << " " << onOneLine(textOrEmpty(value));
    std::cout << std::endl;
  }

  int argc_;
  char** argv_;
  CLI::App app_{about, "tarnel"};
  Action action_;
  std::filesystem::path file_ = defaultDatabase();
  bool demo_ = false;
  struct {
    std::filesystem::path folder;
    double scale = 1;
    bool dark = false;
  } pictures_;
  WizardOptions options_;
};

}  // namespace

int runCommandLine(int argc, char** argv) { return CommandLine(argc, argv).run(); }

}  // namespace tarnel::host
