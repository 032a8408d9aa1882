#include "WizardRun.h"

#include <iostream>

#include "CCreateGuid.h"
#include "Conversions.h"
#include "ErrorReport.h"
#include "Folders.h"
#include "HostActions.h"
#include "OutlookTasksProject.h"
#include "clsTarnelOutWizard.h"

namespace tarnel::host {
namespace {

std::string connectionString(const std::filesystem::path& database) {
  std::string path;
  for (const char c : std::filesystem::absolute(database).string()) path += c == '"' ? "\"\"" : std::string(1, c);
  return "Provider=Tarnel.Database;Data Source=\"" + path + "\";";
}

void tellFailure(const FailureReport& failure, const std::filesystem::path& file) {
  std::cerr << "tarnel: the wizard was ended by a failure in " << failure.module << "." << failure.procedure << ": "
            << failure.text << " (" << failure.number << ")\n"
            << "The full report is in " << file.string() << std::endl;
}

}  // namespace

bool runWizard(Composition& parts, Desktop& desktop, const WizardOptions& options, const EventTeller& tell) {
  const std::string connection = connectionString(options.database);
  ErrorReport errorReport(desktop, parts.clock(), folders::state() / "errors.txt");
  OutlookTasksProject utilities(parts.database(), GetANewGuid);
  parts.install(desktop, errorReport, utilities);

  clsTarnelOutWizard wizard;
  const HostEvents events(wizard, tell);  // told first, then acted on
  const HostActions actions(wizard, parts.database(), connection, utilities);
  wizard.SetTaskPrintSetting(options.printSettings);
  wizard.Setup(options.appointments, toUpper(options.hours), std::string("M").append(std::to_string(options.interval)),
               connection, options.date);

  if (!errorReport.first()) return true;
  tellFailure(*errorReport.first(), errorReport.file());
  return false;
}

}  // namespace tarnel::host
