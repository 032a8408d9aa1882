#include "WizardRun.h"

#include <iostream>

#include "Component.h"
#include "ConnectionString.h"
#include "Conversions.h"
#include "Modes.h"
#include "SqliteProvider.h"
#include "TerminalText.h"

namespace tarnel::host {
namespace {

std::string connectionString(const std::filesystem::path& database) {
  return "Provider=Tarnel.Database;Data Source=" + ado::connectionValue(std::filesystem::absolute(database).string()) +
         ";";
}

// The text must outlive what is made of it.
TarnelText argument(const std::string& text) { return tarnelText(text.c_str()); }

TarnelBool toldAs(bool answer) { return answer ? TARNEL_YES : TARNEL_NO; }

void setUp(const Component& component, const WizardOptions& options, const std::string& connection) {
  const TarnelText printSettings = argument(options.printSettings);
  require(component.wizard().SetTaskPrintSetting(&printSettings, nullptr), component);
  const std::string hours = toUpper(options.hours);
  const std::string interval = "M" + std::to_string(options.interval);
  const TarnelBool appointments = toldAs(options.appointments);
  const TarnelText display1 = argument(hours);
  const TarnelText display2 = argument(interval);
  const TarnelText database = argument(connection);
  require(component.wizard().Setup(&appointments, &display1, &display2, &database, &options.date.days), component);
}

// A database that can't be read is the wizard's to tell of.
void keepUpToDate(const Component& component, ado::Provider& database, const std::string& connection) {
  Modes modes;
  try {
    modes = modesIn(*database.open(connection));
  } catch (const std::exception&) {
    return;
  }
  require(component.control().CopyAtStart(toldAs(modes.tasks == Modes::automatic),
                                          toldAs(modes.appointments == Modes::automatic)),
          component);
}

// Whether the wizard ended without a failure.
bool tellFailure(const Component& component) {
  TarnelText text{};
  if (component.control().FirstFailure(&text) != TARNEL_OK) return true;
  std::cerr << "tarnel: " << forTerminal({text.bytes, text.length}) << std::endl;
  std::free(text.bytes);
  return false;
}

// The connection of a sink that lies on the stack.
class Advised {
 public:
  Advised(const Component& component, WizardEvents& events) : point_(component.events()) {
    require(point_.Advise(&events, &cookie_), component);
  }
  ~Advised() { point_.Unadvise(cookie_); }
  Advised(const Advised&) = delete;
  Advised& operator=(const Advised&) = delete;

 private:
  TarnelConnectionPoint& point_;
  std::uint32_t cookie_ = 0;
};

}  // namespace

bool runWizard(const WizardOptions& options, const FaceChooser& chooseFace, const EventTeller& tell) {
  const Component component;
  TarnelWizardControl& control = component.control();
  require(chooseFace(control), component);
  const std::string mailbox = options.mailbox ? options.mailbox->string() : std::string();
  const TarnelText mailboxFile = argument(mailbox);
  require(control.UseMailbox(&mailboxFile), component);

  const std::string connection = connectionString(options.database);
  sqlite::SqliteProvider database;
  WizardEvents events(control, database, connection, tell);
  const Advised advised(component, events);
  if (options.keepsOutlookUpToDate) keepUpToDate(component, database, connection);
  setUp(component, options, connection);
  return tellFailure(component);
}

}  // namespace tarnel::host
