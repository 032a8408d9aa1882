#pragma once

#include "Conversions.h"
#include "Failure.h"
#include "SqliteProvider.h"
#include "TaskDatabaseScript.h"
#include "TestPlatform.h"
#include "createDatabase.h"
#include "m_OutlookWizard.h"

namespace tarnel::test {

// A platform on a task database as the host makes it, with nothing in it but the default settings and what
// a further script of the engine's own SQL puts there.
struct SettingsDatabase {
  explicit SettingsDatabase(const std::string& script = {}) {
    sqlite::createDatabase(path, host::taskDatabaseScript() + script);
    platform.use(provider);
    session().theszConnect = connection();
  }

  std::string connection() const { return "Data Source=" + path.string() + ";"; }
  void run(const std::string& statement) { provider.open(connection())->execute(statement); }
  void setValue(const std::string& name, const std::string& value) {
    run("UPDATE Settings SET SetSettingValue='" + value + "' WHERE SetSettingName='" + name + "'");
  }
  // The values of a section in their order, each with a blank behind it.
  std::string section(const std::string& name) {
    std::string text;
    for (const ado::Row& row : provider.open(connection())
                                   ->query("SELECT SetSettingValue FROM Settings WHERE SetSettingSection='" + name +
                                           "' ORDER BY setSettingDisplayOrd")
                                   .rows)
      text += textOrEmpty(row.front()) + " ";
    return text;
  }

  TestPlatform platform;
  TempFolder folder;
  std::filesystem::path path = folder / "tasks.tarnel";
  sqlite::SqliteProvider provider;
};

}  // namespace tarnel::test
